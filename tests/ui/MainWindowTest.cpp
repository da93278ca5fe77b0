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

}  // namespace

TEST(MainWindow, SidebarListsBothGroupsWithEveryCategoryInOrder)
{
    WindowFixture fixture;
    fixture.start({});
    Sidebar* sidebar = fixture.window().sidebar();
    QTreeWidgetItem* developer = heading(sidebar, "Developer");
    QTreeWidgetItem* everyday = heading(sidebar, "Everyday");
    ASSERT_TRUE(developer && everyday);

    QStringList expected;
    for (CategoryID category : Categories::allCases())
        expected.append(Categories::title(category));
    EXPECT_EQ(childTitles(developer) + childTitles(everyday), expected);
    // Choosing a row in the sidebar is what switches screens.
    sidebar->setCurrentItem(everyday->child(everyday->childCount() - 1));
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::trash));
    EXPECT_EQ(fixture.window().categoryPage()->emptyStateText(), "Scan to see what's here.");
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

    fixture.show(CategoryID::logs);
    EXPECT_EQ(fixture.question(), nullptr) << "choosing the shown screen asks nothing";

    fixture.show(CategoryID::trash);
    QMessageBox* box = fixture.question();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "Clean the selected items?");
    EXPECT_EQ(box->informativeText(), ByteCount::format(row.size)
              + " in 1 item is selected here. Clean it now, or clear the selection and go on.");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::logs));
    EXPECT_EQ(fixture.window().navigation().pendingDestination(), SidebarDestination::of(CategoryID::trash));

    WindowFixture::answer(box, "Cancel");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::logs));
    EXPECT_TRUE(fixture.model().selection().contains(row.id));

    fixture.show(CategoryID::trash);
    ASSERT_TRUE(fixture.question());
    WindowFixture::answer(fixture.question(), "Clear Selection");
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::trash));
    EXPECT_TRUE(fixture.model().selection().ids().isEmpty());
}

