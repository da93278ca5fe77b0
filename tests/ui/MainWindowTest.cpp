#include "WindowFixture.h"
#include "format/ByteCount.h"
#include "machinery/ScanProgress.h"
#include "support/Wait.h"
#include "ui/CategoryListModel.h"
#include "ui/CategoryPage.h"
#include "ui/Sidebar.h"

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QStringList childTitles(QTreeWidgetItem* heading)
{
    QStringList titles;
    for (int i = 0; i < heading->childCount(); ++i)
        titles.append(heading->child(i)->text(0));
    return titles;
}

QTreeWidgetItem* heading(Sidebar* sidebar, const QString& title)
{
    const auto found = sidebar->findItems(title, Qt::MatchExactly, 0);
    return found.isEmpty() ? nullptr : found.first();
}

// Counts the paint events of a widget for as long as it lives.
class PaintCounter : public QObject {
public:
    PaintCounter(QWidget* widget, int& paints) : m_paints(paints) { widget->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints;
        return QObject::eventFilter(watched, event);
    }

private:
    int& m_paints;
};

}  // namespace

TEST(MainWindow, SidebarListsBothGroupsInOrderAndSetsApartWhatCantFillOnLinux)
{
    WindowFixture fixture;
    fixture.start({});
    Sidebar* sidebar = fixture.window().sidebar();
    QTreeWidgetItem* developer = heading(sidebar, "Developer");
    QTreeWidgetItem* everyday = heading(sidebar, "Everyday");
    QTreeWidgetItem* elsewhere = heading(sidebar, "Not on This Computer");
    ASSERT_TRUE(developer && everyday && elsewhere);

    QStringList expected;
    for (CategoryID category : Categories::allCases()) {
        if (category != CategoryID::xcode && category != CategoryID::simulators && category != CategoryID::devices)
            expected.append(Categories::title(category));
    }
    EXPECT_EQ(childTitles(developer) + childTitles(everyday), expected);
    EXPECT_EQ(childTitles(elsewhere), QStringList({"Xcode", "Simulators", "iPhone & iPad"}));
    // Choosing a row in the sidebar is what switches screens.
    sidebar->setCurrentItem(everyday->child(everyday->childCount() - 1));
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::trash));
    EXPECT_EQ(fixture.window().categoryPage()->emptyStateText(), "Scan to see what's here.");
    // A category set apart still opens, and its explanation says why it stays empty.
    sidebar->setCurrentItem(elsewhere->child(0));
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::xcode));
    EXPECT_TRUE(showsLabel(*fixture.window().categoryPage(), Categories::explanation(CategoryID::xcode)));
    EXPECT_TRUE(Categories::explanation(CategoryID::xcode).contains("this computer has none of its data"));
    const QTreeWidgetItem* about = sidebar->itemFor(SidebarDestination::screen(SidebarDestination::Kind::about));
    EXPECT_TRUE(about && about->flags() & Qt::ItemIsEnabled) << "the About screen is offered";
}

TEST(MainWindow, TheChosenSidebarRowIsHighlightedInOneColourAcrossTheRow)
{
    WindowFixture fixture;
    fixture.start({});
    Sidebar* sidebar = fixture.window().sidebar();
    sidebar->setCategorySize(CategoryID::logs, QStringLiteral("15.29 GB"));
    QTreeWidgetItem* logs = sidebar->itemFor(SidebarDestination::of(CategoryID::logs));
    ASSERT_TRUE(logs);
    fixture.window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.window()));
    sidebar->setFocus();
    sidebar->setCurrentItem(logs);
    ASSERT_TRUE(sidebar->hasFocus());

    const QImage picture = sidebar->viewport()->grab().toImage();
    const QRect title = sidebar->visualItemRect(logs);
    const QRect size = sidebar->visualRect(sidebar->indexFromItem(logs, 1));
    const QColor highlight = sidebar->palette().color(QPalette::Active, QPalette::Highlight);
    // The edges of the row hold no text or icon: any other colour there is a frame or a gap.
    QStringList seams;
    for (int y : {title.top(), title.top() + 1, title.bottom() - 1, title.bottom()}) {
        for (int x = title.left() + 2; x < size.right() - 2; ++x) {
            if (picture.pixelColor(x, y) != highlight)
                seams.append(QStringLiteral("%1,%2").arg(x).arg(y));
        }
    }
    EXPECT_TRUE(seams.isEmpty()) << seams.size() << " pixels differ, first at " << seams.value(0).toStdString();
}

// The glyph of every scanning row turns in step and is painted as it turns; a row that ends
// loses it at once while the others go on.
TEST(MainWindow, SidebarGlyphTurnsOnEveryScanningRowAndLeavesARowThatEnds)
{
    Sidebar sidebar;
    sidebar.show();
    QTreeWidgetItem* logs = sidebar.itemFor(SidebarDestination::of(CategoryID::logs));
    QTreeWidgetItem* projects = sidebar.itemFor(SidebarDestination::of(CategoryID::projects));
    ASSERT_TRUE(logs && projects);
    int paints = 0;
    PaintCounter counter(sidebar.viewport(), paints);
    sidebar.setCategoryBusy(CategoryID::logs, true);
    sidebar.setCategoryBusy(CategoryID::projects, true);
    ASSERT_FALSE(logs->icon(1).isNull());
    const qint64 first = logs->icon(1).cacheKey();
    EXPECT_EQ(projects->icon(1).cacheKey(), first);
    ASSERT_TRUE(waitUntil([&] { return logs->icon(1).cacheKey() != first; }, 2'000));
    paints = 0;
    const qint64 second = logs->icon(1).cacheKey();
    ASSERT_TRUE(waitUntil([&] { return logs->icon(1).cacheKey() != second; }, 2'000));
    EXPECT_EQ(projects->icon(1).cacheKey(), logs->icon(1).cacheKey());
    EXPECT_TRUE(waitUntil([&] { return paints > 0; }, 2'000)) << "the turned glyph was never painted";

    sidebar.setCategoryBusy(CategoryID::logs, false);
    EXPECT_TRUE(logs->icon(1).isNull());
    EXPECT_FALSE(projects->icon(1).isNull());
    EXPECT_TRUE(sidebar.isCategoryBusy(CategoryID::projects));
    sidebar.setCategoryBusy(CategoryID::projects, false);
    EXPECT_TRUE(projects->icon(1).isNull());
}

TEST(MainWindow, ScanShowsProgressThenFillsListsAndSizes)
{
    WindowFixture fixture;
    fixture.home().file("app/node_modules/x.js", 40'000);
    fixture.home().file("web/dist/bundle.js", 90'000);
    auto projects = scannerOf(CategoryID::projects, {fileRow(fixture.home(), CategoryID::projects, "app/node_modules/x.js"),
                                                     fileRow(fixture.home(), CategoryID::projects, "web/dist/bundle.js")});
    projects->holdUntilReleased();
    fixture.start({projects, scannerOf(CategoryID::logs, {})});
    ASSERT_TRUE(waitUntil([&] { return fixture.window().freeSpaceLabel()->text() == "120.5 GB available"; }));

    fixture.window().scanAction()->trigger();
    ASSERT_TRUE(waitUntil([&] { return !fixture.model().isCategoryScanning(CategoryID::logs); }));
    EXPECT_EQ(fixture.window().scanAction()->text(), "Stop");
    EXPECT_TRUE(fixture.window().sidebar()->isCategoryBusy(CategoryID::projects));
    EXPECT_FALSE(fixture.window().sidebar()->isCategoryBusy(CategoryID::logs));
    // The storage analysis the scan started shares the progress; let it count its entries first.
    ASSERT_TRUE(waitUntil([&] { return !fixture.model().isAnalyzingStorage(); }));
    fixture.model().progress()->reset();
    fixture.model().progress()->addEntries(12'345);
    fixture.model().progress()->setCurrentFolder("~/web/dist");
    EXPECT_TRUE(waitUntil([&] {
        const QString shown = fixture.window().scanProgressLabel()->text();
        return shown.contains("12,345") && shown.contains("~/web/dist");
    }));

    projects->release();
    ASSERT_TRUE(waitUntil([&] { return !fixture.model().isBusyScanning(); }));
    EXPECT_EQ(fixture.window().scanAction()->text(), "Scan");
    EXPECT_TRUE(fixture.window().scanProgressLabel()->text().isEmpty());
    const QString total = ByteCount::format(fixture.model().result(CategoryID::projects).totalSize());
    EXPECT_EQ(fixture.window().sidebar()->itemFor(SidebarDestination::of(CategoryID::projects))->text(1), total);
    fixture.show(CategoryID::projects);
    EXPECT_EQ(fixture.window().categoryPage()->listModel()->rowCount(), 2);
    fixture.show(CategoryID::logs);
    EXPECT_EQ(fixture.window().categoryPage()->emptyStateText(), "Nothing to clean here.");
}

TEST(MainWindow, ChoosingAnotherScreenWithASelectionAsksFirst)
{
    WindowFixture fixture;
    const CleanupItem row = fixture.addFile(CategoryID::logs, "Library/Logs/a.log");
    ASSERT_TRUE(fixture.open(CategoryID::logs, {row}));
    fixture.clickCheckbox(row.id);
    ASSERT_TRUE(fixture.model().selection().contains(row.id));

    fixture.show(CategoryID::trash);
    QMessageBox* box = fixture.question();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "Clean the selected items?");
    EXPECT_EQ(box->informativeText(), "You selected 1 item here (" + ByteCount::format(row.size)
              + "). Clean it now, or clear the selection and go on.");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::logs));

    WindowFixture::answer(box, "Cancel");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::logs));
    EXPECT_TRUE(fixture.model().selection().contains(row.id));

    fixture.show(CategoryID::trash);
    ASSERT_TRUE(fixture.question());
    WindowFixture::answer(fixture.question(), "Clear Selection");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::trash));
    EXPECT_TRUE(fixture.model().selection().ids().isEmpty());
}


// Closing the window quits unless the person chose to keep watching (asked of the window's
// owner); then it only hides. Quit closes it for good even then.
TEST(MainWindow, ClosingHidesTheWindowOnlyWhileItKeepsRunning)
{
    WindowFixture fixture;
    fixture.start({});
    MainWindow& window = fixture.window();
    bool keepsRunning = true;
    window.setKeepsRunningWhenClosed([&keepsRunning] { return keepsRunning; });
    const bool quitsOnLastClose = QGuiApplication::quitOnLastWindowClosed();
    QGuiApplication::setQuitOnLastWindowClosed(false);  // the test's own loop must go on

    window.show();
    EXPECT_FALSE(window.close()) << "the close was turned into a hide";
    EXPECT_FALSE(window.isVisible());

    window.bringToFront();
    keepsRunning = false;
    EXPECT_TRUE(window.close());

    window.show();
    keepsRunning = true;
    window.requestQuit();
    EXPECT_FALSE(window.isVisible());
    window.show();
    EXPECT_TRUE(window.close()) << "once Quit was chosen, closing no longer hides";
    QGuiApplication::setQuitOnLastWindowClosed(quitsOnLastClose);
}
