// The row menus of the storage screens over the real window, the real analysis of a temporary
// home and the real remover: a folder goes to the freedesktop trash through the cleanup's own
// sheets and what removal must not touch is refused.
#include "WindowFixture.h"
#include "format/ByteCount.h"
#include "support/Wait.h"
#include "ui/CleanupConfirmation.h"
#include "ui/CleanupResults.h"
#include "ui/CleanupSheet.h"
#include "ui/LargeFoldersPage.h"
#include "ui/MoveDestinationPage.h"
#include "ui/MoveSheet.h"
#include "ui/SizeBarDelegate.h"
#include "ui/StorageFolders.h"
#include "ui/StoragePage.h"
#include "ui/Sunburst.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

class StorageActionsTest : public ::testing::Test {
protected:
    // The window with the Storage screen shown, after the real analysis of the home; removal
    // through the real remover and its last checks.
    void measureAndShowStorage()
    {
        fixture.start({}, [](AppModel::Services& services) { services.removeItem = AppModel::defaultServices().removeItem; });
        storage = new StoragePage(&fixture.model());
        fixture.window().setScreenPage(SidebarDestination::Kind::storage, storage);
        fixture.window().choose(SidebarDestination::screen(SidebarDestination::Kind::storage));
        fixture.model().startStorageAnalysis();
        ASSERT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }, 20'000));
    }

    QTreeWidget* folderList() const { return storage->folders()->contents(); }

    static QTreeWidgetItem* rowNamed(QTreeWidget* list, const QString& name)
    {
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            if (list->topLevelItem(i)->text(0) == name)
                return list->topLevelItem(i);
        }
        return nullptr;
    }

    // The menu `key` opens on the row named `name`, as a person at the keyboard opens it.
    static QMenu* menuOf(QTreeWidget* list, const QString& name, QKeyCombination key = QKeyCombination(Qt::Key_Menu))
    {
        QTreeWidgetItem* row = rowNamed(list, name);
        if (!row)
            return nullptr;
        list->setCurrentItem(row);
        QTest::keyClick(list, key.key(), key.keyboardModifiers());
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    // What the menu's entry `text` offers: "enabled", the reason it is not, "no entry" or "no menu".
    static QString offer(QMenu* menu, const QString& text = QStringLiteral("Move to Trash"), bool choose = false)
    {
        if (!menu)
            return "no menu";
        const QList<QAction*> actions = menu->actions();
        const auto found = std::find_if(actions.begin(), actions.end(), [&](QAction* action) { return action->text() == text; });
        const QString answer = found == actions.end() ? "no entry" : (*found)->isEnabled() ? "enabled" : (*found)->toolTip();
        if (choose && answer == "enabled")
            (*found)->trigger();
        menu->close();
        return answer;
    }

    bool reachesPhase(CleanupSession::Phase phase)
    {
        return waitUntil([&] {
            CleanupSheet* sheet = fixture.window().cleanupSheet();
            return sheet && sheet->session() && sheet->session()->phase() == phase;
        });
    }

    WindowFixture fixture;
    StoragePage* storage = nullptr;
};

}  // namespace

TEST_F(StorageActionsTest, AFolderGoesToTheTrashThroughTheCleanupsSheets)
{
    fixture.home().file("Projects/old/a.bin", 300'000);
    fixture.home().file("Music/song.mp3", 100'000);
    measureAndShowStorage();
    const qint64 bytes = rowNamed(folderList(), "Projects/")->data(1, SizeBarDelegate::bytesRole).toLongLong();

    ASSERT_EQ(offer(menuOf(folderList(), "Projects/"), "Move to Trash", true), "enabled");
    ASSERT_TRUE(reachesPhase(CleanupSession::Phase::confirming));
    CleanupSheet* sheet = fixture.window().cleanupSheet();
    EXPECT_EQ(sheet->confirmation()->title()->text(), "Move “Projects in ~” to the Trash?");
    const auto* risky = sheet->findChild<QLabel*>("riskyLine");
    ASSERT_TRUE(risky);
    EXPECT_TRUE(risky->text().contains("Projects in ~")) << "anything of the person's own is Risky";
    sheet->confirmation()->confirmButton()->click();
    ASSERT_TRUE(reachesPhase(CleanupSession::Phase::finished));

    EXPECT_EQ(sheet->results()->figure("Moved to the Trash"), ByteCount::format(bytes));
    EXPECT_TRUE(QFileInfo::exists(WindowFixture::trashFiles() + "/Projects/old/a.bin"));

    EXPECT_TRUE(fixture.model().isStorageOutdated());
    EXPECT_EQ(rowNamed(folderList(), "Projects/")->toolTip(0), "Moved away since the disk was measured.");
    EXPECT_EQ(rowNamed(folderList(), "Music/")->toolTip(0), fixture.home().path("Music")) << "only what went is marked";
    sheet->results()->doneButton()->click();
    ASSERT_TRUE(waitUntil([&] { return !fixture.window().cleanupSheet(); }));
    EXPECT_EQ(offer(menuOf(folderList(), "Projects/")), "It no longer exists.");
}

// The Safe List holds wherever removal would take it along, on the list and in the sunburst;
// the model refuses a refused row even when asked directly.
TEST_F(StorageActionsTest, TheSafeListAndWhatLiesOutsideTheHomeAreRefused)
{
    fixture.home().file("Documents/keep/taxes.pdf", 200'000);
    fixture.home().file("Documents/notes.txt", 200'000);
    measureAndShowStorage();
    fixture.model().addSafeFolder(fixture.home().path("Documents/keep"));

    const QString holds = "Something inside it is on the Safe List.";
    EXPECT_EQ(offer(menuOf(folderList(), "Documents/", QKeyCombination(Qt::ShiftModifier, Qt::Key_F10))), holds);
    EXPECT_EQ(offer(menuOf(folderList(), "Documents/"), "Move to Another Disk…"), holds);
    storage->folders()->sunburst()->zoomTo({"Documents"});
    EXPECT_EQ(offer(menuOf(folderList(), "keep/")), "It is on the Safe List.");
    // The drill-down: its row of loose files stands for them, not for the folder holding them.
    storage->showBucket(StorageBucket::documents);
    storage->showFolder(fixture.home().path("Documents"));
    EXPECT_EQ(offer(menuOf(storage->details(), "Files in this folder")), "no entry");
    EXPECT_EQ(offer(menuOf(storage->details(), "keep/")), "It is on the Safe List.");

    const CleanupItem safe = fixture.model().storageItem(fixture.home().path("Documents/keep"), 1);
    fixture.model().prepareRemoval(safe);
    EXPECT_EQ(fixture.model().cleanup(), nullptr);
    EXPECT_EQ(fixture.model().toast(), "It is on the Safe List.");
    EXPECT_FALSE(fixture.model().startMove(safe, "/dev/shm"));
    EXPECT_TRUE(QFileInfo::exists(fixture.home().path("Documents/keep/taxes.pdf")));

    Sunburst* sunburst = storage->folders()->sunburst();
    sunburst->zoomTo({});
    QTest::keyClick(sunburst, Qt::Key_Right);  // to the first segment of the inner ring, the only folder
    ASSERT_EQ(sunburst->folderOf(sunburst->current()), QStringList{"Documents"});
    QTest::keyClick(sunburst, Qt::Key_Menu);
    EXPECT_EQ(offer(qobject_cast<QMenu*>(QApplication::activePopupWidget())), holds) << "a folder's segment has its menu";
}

// Large Folders' rows have the menu too: a folder in the home opens the move sheet naming it as
// its row does; one outside the home is refused.
TEST_F(StorageActionsTest, LargeFoldersMoveWhatLiesInTheHomeOnly)
{
    TempTree outside;
    outside.file("cache/x.bin", 1'000);
    const QString modules = fixture.home().file("code/node_modules/left-pad/index.js", 1'000);
    fixture.start({}, [&](AppModel::Services& services) {
        services.analyzeStorage = [home = fixture.home().root(), other = outside.path("cache")](const StorageAnalyzer::Request&) {
            StorageReport report;
            report.date = QDateTime::currentDateTimeUtc();
            report.largeFolders = {{home + "/code/node_modules", 400'000'000, 5'000, 300'000'000, StorageBucket::developer},
                                   {other, 200'000'000, 3'000, 150'000'000, StorageBucket::developer}};
            return std::optional(report);
        };
    });
    auto* page = new LargeFoldersPage(&fixture.model());
    fixture.window().setScreenPage(SidebarDestination::Kind::largeFolders, page);
    fixture.window().choose(SidebarDestination::screen(SidebarDestination::Kind::largeFolders));
    fixture.model().startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return page->list()->topLevelItemCount() == 2; }));

    EXPECT_EQ(offer(menuOf(page->list(), outside.path("cache"))), "It is outside your home folder.");
    EXPECT_EQ(offer(menuOf(page->list(), outside.path("cache")), "Move to Another Disk…"), "It is outside your home folder.");
    ASSERT_EQ(offer(menuOf(page->list(), "~/code/node_modules"), "Move to Another Disk…", true), "enabled");
    auto* sheet = fixture.window().findChild<MoveSheet*>();
    ASSERT_TRUE(sheet);
    EXPECT_TRUE(showsLabel(*sheet->destinationPage(), "Move “node_modules in ~/code” to another disk?"));
    sheet->reject();
    EXPECT_TRUE(QFileInfo::exists(modules));
}
