#include "WindowFixture.h"
#include "format/ByteCount.h"
#include "platform/Platform.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/CleanupConfirmation.h"
#include "ui/CleanupProgress.h"
#include "ui/CleanupResults.h"
#include "ui/CleanupSheet.h"
#include "ui/SelectionBar.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <qpa/qwindowsysteminterface.h>

#include <atomic>
#include <gtest/gtest.h>

namespace {

CleanupItem dockerVolume()
{
    CleanupItem item;
    item.id = "docker:volume:pgdata";
    item.category = CategoryID::docker;
    item.title = "pgdata";
    item.size = 700'000'000;
    item.removal = Removal::docker(DockerOperation{DockerOperation::Volume{"pgdata", "2024-01-02"}});
    return item;
}

bool waitForPhase(WindowFixture& fixture, CleanupSession::Phase phase)
{
    return waitUntil([&] {
        CleanupSheet* sheet = fixture.window().cleanupSheet();
        return sheet && sheet->session() && sheet->session()->phase() == phase;
    });
}

// Selects every row of `category` and confirms the cleanup on the sheet.
void confirmAll(WindowFixture& fixture, CategoryID category)
{
    ASSERT_TRUE(fixture.scan());
    fixture.model().setAll(fixture.model().visibleItems(category), true);
    fixture.model().prepareCleanup();
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::confirming));
    fixture.window().cleanupSheet()->confirmation()->confirmButton()->click();
}

// Cleans `rows` (temporary files) with a removal that holds at each item until released;
// answers whether it was entered, and the release.
std::pair<std::shared_ptr<std::atomic<bool>>, std::shared_ptr<std::atomic<bool>>> startHeldCleanup(
    WindowFixture& fixture, const QList<CleanupItem>& rows)
{
    auto entered = std::make_shared<std::atomic<bool>>(false);
    auto release = std::make_shared<std::atomic<bool>>(false);
    fixture.start({scannerOf(CategoryID::temporary, rows)}, [=](AppModel::Services& services) {
        services.removeItem = [=](const CleanupItem& item, const RemovalEnvironment&) {
            *entered = true;
            while (!*release)
                QThread::msleep(2);
            return WindowFixture::moveToTrash(item);
        };
    });
    confirmAll(fixture, CategoryID::temporary);
    return {entered, release};
}

}  // namespace

TEST(CleanupSheet, ConfirmationNamesRiskyAndPermanentItemsAndCancelKeepsTheSelection)
{
    WindowFixture fixture;
    const CleanupItem risky = fixture.addFile(CategoryID::largeFiles, "Movies/holiday.iso");
    const CleanupItem volume = dockerVolume();
    fixture.start({scannerOf(CategoryID::largeFiles, {risky}), scannerOf(CategoryID::docker, {volume})});
    ASSERT_TRUE(fixture.scan());
    fixture.show(CategoryID::largeFiles);
    fixture.clickCheckbox(risky.id);
    fixture.model().setSelected(volume, true);
    fixture.show(CategoryID::docker);
    // "Clean…" in the switch question opens the sheet and stays on the shown screen.
    WindowFixture::answer(fixture.question(), "Clean…");

    CleanupSheet* sheet = fixture.window().cleanupSheet();
    ASSERT_TRUE(sheet && sheet->isVisible());
    CleanupConfirmation* confirmation = sheet->confirmation();
    EXPECT_EQ(confirmation->title()->text(), "Remove 1 item for good?");
    const QStringList texts = confirmation->texts();
    EXPECT_TRUE(texts.contains("Docker and Xcode remove these items without the Trash. This can't be undone."));
    // A Docker volume is Risky too; the names follow the category order.
    EXPECT_TRUE(texts.contains("2 selected items are marked Risky: pgdata, holiday.iso. They may hold data that exists nowhere else."));
    EXPECT_TRUE(texts.contains("Docker and Xcode remove these themselves. This can't be undone."));
    EXPECT_EQ(confirmation->confirmButton()->text(), "Remove for Good and Clean");

    confirmation->cancelButton()->click();
    EXPECT_TRUE(waitUntil([&] { return !fixture.window().cleanupSheet(); }));
    EXPECT_EQ(fixture.model().selection().ids().size(), 2);
    EXPECT_EQ(fixture.window().destination(), SidebarDestination::of(CategoryID::largeFiles));
}

TEST(CleanupSheet, CleanupMovesFilesToTheTrashAndEmptiesIt)
{
    WindowFixture fixture;
    fixture.home().file("app/node_modules/left-pad/index.js", 20'000);
    fixture.home().file("app/build/out.o", 30'000);
    CleanupItem modules = fileRow(fixture.home(), CategoryID::projects, "app/node_modules");
    CleanupItem build = fileRow(fixture.home(), CategoryID::projects, "app/build");
    modules.size = 20'480;
    build.size = 32'768;
    auto freeSpace = std::make_shared<std::atomic<qint64>>(120'500'000'000);
    CategoryPage* page = fixture.open(CategoryID::projects, {modules, build}, [=](AppModel::Services& services) {
        services.readSystemState = [=](const QString&) { return AppModel::SystemState{freeSpace->load(), 494'000'000'000, true}; };
    });
    ASSERT_TRUE(page);
    page->selectAll()->click();
    page->selectionBar()->cleanButton()->click();

    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::confirming));
    CleanupSheet* sheet = fixture.window().cleanupSheet();
    EXPECT_EQ(sheet->confirmation()->title()->text(), "Move 2 items to the Trash?");
    sheet->confirmation()->confirmButton()->click();
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::finished));

    CleanupResults* results = sheet->results();
    ASSERT_TRUE(results);
    EXPECT_EQ(results->title()->text(), "Cleaning finished");
    EXPECT_EQ(results->figure("Moved to the Trash"), ByteCount::format(modules.size + build.size));
    EXPECT_EQ(results->figure("Free space after"), "120.5 GB");
    EXPECT_EQ(results->figure("Freed"), "None yet: the space comes back when the Trash is emptied")
        << "moving to the Trash on the same disk frees nothing";
    EXPECT_TRUE(results->failures()->isHidden());
    EXPECT_FALSE(QFileInfo::exists(modules.id) || QFileInfo::exists(build.id));
    EXPECT_EQ(page->emptyStateText(), "Nothing to clean here.");
    const QString where = Platform::desktop() == Platform::Desktop::finder ? "Finder" : "your file manager";
    EXPECT_EQ(results->trashNote()->text(),
              "Files in the Trash still take space. Empty the Trash to get it back, or check them in " + where + " first.");

    results->emptyTrashButton()->click();
    *freeSpace = 120'600'000'000;
    WindowFixture::answer(fixture.question(), "Empty Trash");
    ASSERT_TRUE(waitUntil([&] { return results->trashNote()->text() == "The Trash is empty."; }));
    EXPECT_TRUE(QDir(WindowFixture::trashFiles()).isEmpty());
    EXPECT_TRUE(waitUntil([&] { return results->figure("Freed") == "100 MB"; })) << qPrintable(results->figure("Freed"));
    EXPECT_EQ(results->figure("Free space after"), "120.6 GB");
    // The toolbar reads the system's state again on its own turn.
    EXPECT_TRUE(waitUntil([&] { return fixture.window().freeSpaceLabel()->text() == "120.6 GB available"; }))
        << qPrintable(fixture.window().freeSpaceLabel()->text());

    results->doneButton()->click();
    EXPECT_TRUE(waitUntil([&] { return !fixture.window().cleanupSheet(); }));
    EXPECT_TRUE(fixture.model().lastRunCleanup());
}

// The sheet names a project's folder as its row does, not by the project alone; Return confirms
// only a cleanup without Risky items.
TEST(CleanupSheet, NamesTheFolderThatGoesAndReturnNeverConfirmsRiskyItems)
{
    WindowFixture fixture;
    fixture.home().file("Projects/bigmove2/node_modules/left-pad/index.js", 20'000);
    CleanupItem modules = fileRow(fixture.home(), CategoryID::projects, "Projects/bigmove2/node_modules");
    modules.title = "bigmove2";
    modules.badge = "node_modules";
    modules.projectPath = fixture.home().path("Projects/bigmove2");
    const CleanupItem movie = fixture.addFile(CategoryID::largeFiles, "Movies/holiday.iso");
    fixture.start({scannerOf(CategoryID::projects, {modules}), scannerOf(CategoryID::largeFiles, {movie})});
    ASSERT_TRUE(fixture.scan());

    fixture.model().setSelected(movie, true);
    fixture.model().prepareCleanup();
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::confirming));
    CleanupSheet* sheet = fixture.window().cleanupSheet();
    EXPECT_TRUE(sheet->confirmation()->cancelButton()->isDefault());
    EXPECT_FALSE(sheet->confirmation()->confirmButton()->isDefault());
    QTest::keyClick(sheet, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return fixture.model().cleanup() == nullptr; })) << "Return didn't cancel";
    EXPECT_TRUE(QFileInfo::exists(movie.id));
    EXPECT_TRUE(fixture.model().selection().contains(movie.id)) << "cancelling keeps the selection";

    fixture.model().clearSelection();
    fixture.model().setSelected(modules, true);
    fixture.model().prepareCleanup();
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::confirming));
    sheet = fixture.window().cleanupSheet();
    EXPECT_EQ(sheet->confirmation()->title()->text(), "Move “node_modules in ~/Projects/bigmove2” to the Trash?");
    QTest::keyClick(sheet, Qt::Key_Return);
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::finished)) << "Return confirms what isn't Risky";
    EXPECT_FALSE(QFileInfo::exists(modules.id));
    EXPECT_TRUE(QFileInfo::exists(fixture.home().path("Projects/bigmove2")));
}

TEST(CleanupSheet, FailuresAreListedWithTheirReasons)
{
    WindowFixture fixture;
    const CleanupItem kept = fixture.addFile(CategoryID::logs, "Library/Logs/keep.log");
    const CleanupItem gone = fixture.addFile(CategoryID::logs, "Library/Logs/gone.log");
    fixture.start({scannerOf(CategoryID::logs, {kept, gone})}, [](AppModel::Services& services) {
        services.removeItem = [](const CleanupItem& item, const RemovalEnvironment&) {
            if (item.title == "keep.log")
                return CleanupSession::Outcome::failed("It changed since the scan. Scan again.");
            return WindowFixture::moveToTrash(item);
        };
    });
    confirmAll(fixture, CategoryID::logs);
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::finished));

    const QAbstractItemModel* failures = fixture.window().cleanupSheet()->results()->failures()->model();
    ASSERT_EQ(failures->rowCount(), 1);
    EXPECT_EQ(failures->index(0, 0).data().toString(), "keep.log");
    EXPECT_EQ(failures->index(0, 1).data().toString(), "It changed since the scan. Scan again.");
    EXPECT_EQ(fixture.model().result(CategoryID::logs).items, QList<CleanupItem>{kept});
}

// Every way to ask for quitting reaches the question while the sheet is up: the Quit key pressed
// in the sheet, the window manager's close request on the (blocked) main window, and the menu.
TEST(CleanupSheet, QuittingWhileCleaningAsksThenStopsAfterTheCurrentItem)
{
    WindowFixture fixture;
    const CleanupItem one = fixture.addFile(CategoryID::temporary, "tmp/one");
    const CleanupItem two = fixture.addFile(CategoryID::temporary, "tmp/two");
    const auto [entered, release] = startHeldCleanup(fixture, {one, two});
    ASSERT_TRUE(waitUntil([&] { return entered->load(); }));
    CleanupSheet* sheet = fixture.window().cleanupSheet();
    EXPECT_TRUE(sheet->progress()->isVisible());

    QTest::keyClick(sheet, Qt::Key_Q, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([&] { return fixture.question() != nullptr; }));
    EXPECT_EQ(fixture.question()->text(), "Quit while Dustlark is working?");
    EXPECT_EQ(fixture.question()->informativeText(), "Dustlark stops after the current item and removes an unfinished copy, then quits.");
    WindowFixture::answer(fixture.question(), "Keep Working");
    EXPECT_TRUE(fixture.window().isVisible());

    QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::SynchronousDelivery>(fixture.window().windowHandle());
    ASSERT_TRUE(fixture.question()) << "the close button of the window must ask too";
    WindowFixture::answer(fixture.question(), "Stop and Quit");
    EXPECT_TRUE(fixture.window().isVisible()) << "waits for the current item";
    *release = true;
    ASSERT_TRUE(waitUntil([&] { return !fixture.window().isVisible(); }));
    EXPECT_FALSE(sheet->isVisible()) << "no window is left to keep the app alive";
    EXPECT_TRUE(QFileInfo::exists(two.id)) << "nothing after the current item is touched";
}

// Nobody answered before the cleanup ended: the question has nothing left to ask and goes.
TEST(CleanupSheet, TheQuitQuestionGoesWhenTheCleanupEndsWhileItIsOpen)
{
    WindowFixture fixture;
    const CleanupItem one = fixture.addFile(CategoryID::temporary, "tmp/one");
    const auto [entered, release] = startHeldCleanup(fixture, {one});
    ASSERT_TRUE(waitUntil([&] { return entered->load(); }));
    fixture.window().requestQuit();
    ASSERT_TRUE(waitUntil([&] { return fixture.question() != nullptr; }));

    *release = true;
    ASSERT_TRUE(waitForPhase(fixture, CleanupSession::Phase::finished));
    EXPECT_TRUE(waitUntil([&] { return fixture.question() == nullptr; })) << "the question outlived the cleanup";
    EXPECT_TRUE(fixture.window().cleanupSheet()->isVisible()) << "the results stay until Done";
    EXPECT_TRUE(fixture.window().isVisible());
}

TEST(CleanupSheet, TheQuitKeyQuitsAtOnceWhenNothingIsChanging)
{
    WindowFixture fixture;
    fixture.start({});
    QTest::keyClick(&fixture.window(), Qt::Key_Q, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([&] { return !fixture.window().isVisible(); }));
    EXPECT_EQ(fixture.question(), nullptr);
}
