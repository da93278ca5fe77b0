#include "WindowFixture.h"
#include "format/ByteCount.h"
#include "platform/Platform.h"
#include "support/Wait.h"
#include "ui/CategoryItemDelegate.h"
#include "ui/CategoryListModel.h"
#include "ui/CategoryPage.h"
#include "ui/Reveal.h"
#include "ui/StallMeter.h"
#include "ui/Toast.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

// A duplicates row for a file of the tree.
CleanupItem copyRow(const TempTree& tree, const QString& relative, const QString& group)
{
    CleanupItem item = fileRow(tree, CategoryID::duplicates, relative);
    item.duplicateGroup = group;
    return item;
}

QString tooltipOverCheckbox(WindowFixture& fixture, const QModelIndex& index)
{
    QListView* list = fixture.window().categoryPage()->list();
    const QPoint at = fixture.geometryOf(index).checkbox.center();
    QHelpEvent event(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
    QApplication::sendEvent(list->viewport(), &event);
    return QToolTip::text();
}

QStringList actionTitles(const QMenu* menu)
{
    QStringList titles;
    for (const QAction* action : menu->actions())
        titles.append(action->text());
    return titles;
}

QStringList shownTitles(const CategoryListModel* list)
{
    QStringList shown;
    for (int row = 0; row < list->rowCount(); ++row)
        shown.append(list->index(row).data().toString());
    return shown;
}

}  // namespace

TEST(CategoryPage, LockedRowsCantBeTickedOthersToggle)
{
    WindowFixture fixture;
    CleanupItem locked = fixture.addFile(CategoryID::aiAgents, ".claude/projects/a.jsonl");
    locked.lockedReason = "Changed in the last day; a session may be running.";
    const CleanupItem open = fixture.addFile(CategoryID::aiAgents, ".claude/projects/b.jsonl");
    CategoryPage* page = fixture.open(CategoryID::aiAgents, {locked, open});
    ASSERT_TRUE(page);

    fixture.clickCheckbox(locked.id);
    EXPECT_FALSE(fixture.model().selection().contains(locked.id));
    EXPECT_EQ(tooltipOverCheckbox(fixture, fixture.rowOf(locked.id)), *locked.lockedReason);

    fixture.clickCheckbox(open.id);
    EXPECT_TRUE(fixture.model().selection().contains(open.id));
    EXPECT_TRUE(page->selectAll()->isChecked()) << "the locked row doesn't hold select-all back";
    fixture.clickCheckbox(open.id);
    EXPECT_FALSE(fixture.model().selection().contains(open.id));
}

TEST(CategoryPage, DuplicateCheckboxesAlwaysKeepOneCopy)
{
    WindowFixture fixture;
    for (const char* name : {"a/one.mov", "b/one.mov", "a/two.zip", "b/two.zip", "c/two.zip"})
        fixture.home().file(name, 3'000'000);
    const QList<CleanupItem> copies = {
        copyRow(fixture.home(), "a/one.mov", "g1"), copyRow(fixture.home(), "a/two.zip", "g2"),
        copyRow(fixture.home(), "b/one.mov", "g1"), copyRow(fixture.home(), "b/two.zip", "g2"),
        copyRow(fixture.home(), "c/two.zip", "g2"),
    };
    CategoryPage* page = fixture.open(CategoryID::duplicates, copies);
    ASSERT_TRUE(page);
    // A section row over each group's copies counts what can be freed, one copy staying.
    EXPECT_EQ(shownTitles(page->listModel()).mid(1, 2), QStringList({"one.mov", "one.mov"}));
    EXPECT_TRUE(page->listModel()->index(3).data(CategoryListModel::IsSectionRole).toBool());
    EXPECT_EQ(page->listModel()->index(3).data(CategoryListModel::SizeTextRole).toString(), ByteCount::format(2 * copies[0].size));

    fixture.clickCheckbox(copies[0].id);
    fixture.clickCheckbox(copies[2].id);
    EXPECT_TRUE(fixture.model().selection().contains(copies[0].id));
    EXPECT_FALSE(fixture.model().selection().contains(copies[2].id));
    EXPECT_EQ(tooltipOverCheckbox(fixture, fixture.rowOf(copies[2].id)), "One copy always stays.");

    page->selectAll()->click();
    EXPECT_EQ(fixture.model().selection().ids().size(), 3) << "one copy per group stays";
    EXPECT_TRUE(page->selectAll()->isChecked());
    page->selectAll()->click();
    EXPECT_TRUE(fixture.model().selection().ids().isEmpty());
}

TEST(CategoryPage, EmptyStatesFollowTheScanTheFilterAndTheSearch)
{
    WindowFixture fixture;
    fixture.home().sparseFile("Downloads/small.dmg", 5'000'000);
    fixture.home().sparseFile("Downloads/big.dmg", 50'000'000);
    CleanupItem small = fileRow(fixture.home(), CategoryID::installers, "Downloads/small.dmg");
    CleanupItem big = fileRow(fixture.home(), CategoryID::installers, "Downloads/big.dmg");
    fixture.start({scannerOf(CategoryID::installers, {small, big}), scannerOf(CategoryID::logs, {})});
    fixture.show(CategoryID::installers);
    CategoryPage* page = fixture.window().categoryPage();
    EXPECT_EQ(page->emptyStateText(), "Scan to see what's here.");
    EXPECT_FALSE(page->showsList());

    ASSERT_TRUE(fixture.scan());
    EXPECT_EQ(page->listModel()->rowCount(), 2);
    page->sizeFilter()->setCurrentIndex(page->sizeFilter()->findText("10 MB+"));
    emit page->sizeFilter()->activated(page->sizeFilter()->currentIndex());
    EXPECT_EQ(fixture.model().settings()->sizeFilterRaw(), 10);
    EXPECT_EQ(shownTitles(page->listModel()), QStringList{"big.dmg"});

    page->search()->setText("small");
    EXPECT_EQ(page->emptyStateText(), "Nothing matches the filter.");
    EXPECT_FALSE(page->showsList());
    // Select-all works on the shown rows only.
    page->search()->clear();
    page->selectAll()->click();
    EXPECT_TRUE(fixture.model().selection().contains(big.id));
    EXPECT_FALSE(fixture.model().selection().contains(small.id));
}

TEST(CategoryPage, AskAIQuestionsGoToTheClipboard)
{
    WindowFixture fixture;
    const CleanupItem model = fixture.addFile(CategoryID::aiModels, ".ollama/models/blobs/sha256-1");
    CategoryPage* page = fixture.open(CategoryID::aiModels, {model});
    ASSERT_TRUE(page);
    const QString opening = Platform::desktop() == Platform::Desktop::finder ? QStringLiteral("I'm cleaning up my Mac with Dustlark")
                                                                            : QStringLiteral("I'm cleaning up my Linux computer with Dustlark");
    QGuiApplication::clipboard()->clear();
    QTest::mouseClick(page->list()->viewport(), Qt::LeftButton, {}, fixture.geometryOf(fixture.rowOf(model.id)).safety.center());
    EXPECT_TRUE(waitUntil([&] {
        const QString question = QGuiApplication::clipboard()->text();
        return question.startsWith(opening + " and want to know") && question.contains("sha256-1");
    }));
    EXPECT_FALSE(fixture.model().selection().contains(model.id)) << "clicking the label doesn't tick the row";

    QGuiApplication::clipboard()->clear();
    page->askAboutShownButton()->click();
    EXPECT_TRUE(waitUntil([&] {
        return QGuiApplication::clipboard()->text().startsWith(opening + ". For each item below");
    }));
    EXPECT_EQ(fixture.window().toast()->text(), "Question copied. Paste it into your AI assistant.");
}

TEST(CategoryPage, WorktreesAreGroupedByRepository)
{
    WindowFixture fixture;
    QList<CleanupItem> rows;
    for (const char* path : {"wt/app-fix", "wt/site-a", "wt/app-feature"}) {
        fixture.home().file(QString(path) + "/README", 100);
        CleanupItem row = fileRow(fixture.home(), CategoryID::worktrees, path);
        row.projectPath = fixture.home().path(QString(path).contains("app") ? "src/app" : "src/site");
        rows.append(row);
    }
    CategoryPage* page = fixture.open(CategoryID::worktrees, rows);
    ASSERT_TRUE(page);
    EXPECT_EQ(shownTitles(page->listModel()), QStringList({"app", "app-fix", "app-feature", "site", "site-a"}));
    EXPECT_EQ(page->listModel()->index(0).data(CategoryListModel::SubtitleRole).toString(), "~/src/app · 2 worktrees");
    EXPECT_EQ(page->listModel()->index(3).data(CategoryListModel::SubtitleRole).toString(), "~/src/site · 1 worktree");
}

// The Safe List screen points at "the ••• menu of any row": it opens the row's menu by pointer,
// by the keyboard's menu keys on the current row and by a right-click. With no file manager on
// the session's bus and no opener to fall back on, Show says so instead of silently doing nothing.
TEST(CategoryPage, TheRowMenuOpensEveryWayShowsTheItemAndPutsItOnTheSafeList)
{
    WindowFixture fixture;
    const CleanupItem row = fixture.addFile(CategoryID::logs, "Library/Logs/a.log");
    CategoryPage* page = fixture.open(CategoryID::logs, {row});
    ASSERT_TRUE(page);
    const QModelIndex index = fixture.rowOf(row.id);
    const QPoint at = fixture.geometryOf(index).more.center();
    QTest::mouseClick(page->list()->viewport(), Qt::LeftButton, {}, at);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_TRUE(actionTitles(menu).contains(Platform::desktop() == Platform::Desktop::finder ? "Show in Finder" : "Show in File Manager"));
    EXPECT_FALSE(fixture.model().selection().contains(row.id)) << "the button is not the checkbox";
    menu->close();

    page->list()->setCurrentIndex(index);
    for (const QKeyCombination key : {QKeyCombination(Qt::Key_Menu), QKeyCombination(Qt::ShiftModifier, Qt::Key_F10)}) {
        QTest::keyClick(page->list(), key.key(), key.keyboardModifiers());
        menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << QKeySequence(key).toString().toStdString();
        menu->close();
    }
    const QPoint middle = page->list()->visualRect(index).center();
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, middle, page->list()->viewport()->mapToGlobal(middle));
    QApplication::sendEvent(page->list()->viewport(), &rightClick);
    menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu) << "a right-click";
    menu->close();

    Reveal::show(&fixture.model(), row.id, fixture.home().path("no-such-opener"));
    ASSERT_TRUE(waitUntil([&] { return fixture.window().toast()->isVisible(); }));
    EXPECT_EQ(fixture.window().toast()->text(), "No file manager could show “a.log”.");

    for (QAction* action : page->makeRowMenu(index)->actions()) {
        if (action->text() == "Add to Safe List")
            action->trigger();
    }
    EXPECT_EQ(page->emptyStateText(), "Nothing to clean here.");
    EXPECT_EQ(fixture.window().toast()->text(), "“a.log” is on the Safe List.");
}

// On the selected row the button keeps its own colours: its dots must stand out from its pill.
TEST(CategoryPage, TheMoreButtonIsVisibleOnTheSelectedRow)
{
    WindowFixture fixture;
    const CleanupItem row = fixture.addFile(CategoryID::logs, "Library/Logs/a.log");
    CategoryPage* page = fixture.open(CategoryID::logs, {row});
    ASSERT_TRUE(page);
    const QModelIndex index = fixture.rowOf(row.id);
    QStyleOptionViewItem option;
    option.initFrom(page->list()->viewport());
    option.rect = QRect(QPoint(0, 0), page->list()->visualRect(index).size());
    option.state |= QStyle::State_Selected | QStyle::State_Enabled;
    QImage picture(option.rect.size(), QImage::Format_ARGB32);
    picture.fill(option.palette.color(QPalette::Highlight));
    QPainter painter(&picture);
    page->list()->itemDelegate()->paint(&painter, option, index);
    painter.end();

    // Inside the pill only: its rounded ends meet the highlight, which differs from it anyway.
    QRect more = fixture.geometryOf(index).more.translated(-page->list()->visualRect(index).topLeft());
    more.adjust(more.height() / 2, 2, -more.height() / 2, -2);
    const int pill = option.palette.color(QPalette::Button).lightness();
    int dotPixels = 0;
    for (int y = more.top(); y <= more.bottom(); ++y) {
        for (int x = more.left(); x <= more.right(); ++x)
            dotPixels += std::abs(QColor(picture.pixel(x, y)).lightness() - pill) > 80 ? 1 : 0;
    }
    EXPECT_GT(dotPixels, 6) << "the dots vanish into the pill";
}

namespace {

// `count` rows whose paths lie in the home; duplicates come three copies to a group.
QList<CleanupItem> bigList(const TempTree& home, CategoryID category, int count)
{
    QList<CleanupItem> rows;
    rows.reserve(count);
    for (int i = 0; i < count; ++i) {
        CleanupItem item;
        FileTarget target;
        target.path = home.path(QStringLiteral("big/%1/file-%2.bin").arg(i / 100).arg(i));
        item.id = target.path;
        item.category = category;
        item.title = QStringLiteral("file-%1.bin").arg(i);
        item.size = 200'000'000 - i;
        item.removal = Removal::trash({target});
        if (category == CategoryID::duplicates)
            item.duplicateGroup = QStringLiteral("group-%1").arg(i / 3);
        rows.append(item);
    }
    return rows;
}

}  // namespace

// A list of tens of thousands of rows arriving at once with the list on screen: every row shows,
// in order. The GUI thread's time for the arrival is printed (not asserted) for the benchmarks;
// raise the count for their larger lists.
TEST(CategoryPage, BigListsArriveWholeAndInOrder)
{
    const int count = 20'000;
    for (CategoryID category : {CategoryID::largeFiles, CategoryID::duplicates}) {
        WindowFixture fixture;
        const QList<CleanupItem> rows = bigList(fixture.home(), category, count);
        fixture.start({scannerOf(category, rows)});
        fixture.show(category);
        QCoreApplication::processEvents();
        StallMeter meter(std::chrono::milliseconds(5));
        ASSERT_TRUE(waitUntil([&] { return meter.watched() >= 20; }));
        ASSERT_TRUE(fixture.scan());
        QCoreApplication::processEvents();
        std::printf("[ measure  ] %s %d rows: busiest GUI turn %lld ms, longest stall %lld ms\n",
                    qPrintable(Categories::title(category)), count,
                    static_cast<long long>(meter.busiestTurn()), static_cast<long long>(meter.longestStall()));

        const CategoryListModel* list = fixture.window().categoryPage()->listModel();
        const QList<CleanupItem>& shown = list->shownItems();
        ASSERT_EQ(shown.size(), count);
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(shown[i].id, rows[i].id) << "row " << i;
        EXPECT_EQ(list->itemAt(list->index(list->rowCount() - 1))->id, rows.last().id);
        // The delegate paints every row: no widget per row, and the last is reached by scrolling.
        QListView* view = fixture.window().categoryPage()->list();
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        EXPECT_EQ(view->indexAt(QPoint(10, view->viewport()->height() - 5)).data().toString(), rows.last().title);
        EXPECT_TRUE(view->viewport()->findChildren<QWidget*>().isEmpty()) << "no widget per row";
        fixture.model().setAll(shown, true);
        const int kept = category == CategoryID::duplicates ? (count + 2) / 3 : 0;  // a copy of each stays
        EXPECT_EQ(fixture.model().selectedItems().size(), count - kept);
    }
}
