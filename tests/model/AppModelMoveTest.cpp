// The model's move: the real mover to /dev/shm, a second file system, with the real Trash.
#include "actions/Mover.h"
#include "scan/TrashScanner.h"
#include "support/ModelFixture.h"
#include "support/RealMover.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "vocabulary/SystemPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

CleanupItem realRow(const TempTree& tree, const QString& relative)
{
    CleanupItem item = rowAt(CategoryID::largeFiles, tree.path(relative));
    item.removal = Removal::trash({FileTarget::make(tree.path(relative)).value_or(FileTarget{})});
    return item;
}

void show(AppModel& model, const QList<CleanupItem>& items)
{
    ScanOutputs outputs;
    outputs[CategoryID::largeFiles].items = items;
    model.apply(outputs, false);
}

bool ended(AppModel& model)
{
    return model.moveSession() && !model.moveSession()->isRunning();
}

class AppModelMove : public ::testing::Test {
protected:
    void SetUp() override
    {
        struct stat shm {}, temporary {};
        if (!disk.isValid() || ::stat("/dev/shm", &shm) != 0 || ::stat(qPrintable(home.root()), &temporary) != 0
            || shm.st_dev == temporary.st_dev)
            GTEST_SKIP() << "these tests need /dev/shm on a file system of its own";
    }

    TempTree home;
    QTemporaryDir disk{QStringLiteral("/dev/shm/dustlark-model-XXXXXX")};
};

}  // namespace

TEST_F(AppModelMove, OneMoveAtATimeHoldsScansAndLeavesTheResultsWhenDone)
{
    home.file(QStringLiteral("Videos/film.mov"), 400'000);
    const CleanupItem film = realRow(home, QStringLiteral("Videos/film.mov"));
    const CleanupItem other = realRow(home, QStringLiteral("Videos"));
    ModelFixture fixture({}, home.root());
    AppModel& model = fixture.model();
    fixture.settings().addRoot(QStringLiteral("/Volumes/Archive/Projects"));
    show(model, {film, other});
    model.setSelected(film, true);
    CleanupItem worktree = film;
    worktree.category = CategoryID::worktrees;
    EXPECT_FALSE(model.startMove(worktree, disk.path()));

    ASSERT_TRUE(model.startMove(film, disk.path()));
    EXPECT_TRUE(model.isChangingFiles());
    EXPECT_FALSE(model.startMove(other, disk.path())) << "a second move while one is open";
    model.startScan();
    model.rescan(CategoryID::largeFiles);
    model.prepareCleanup();
    EXPECT_FALSE(model.isBusyScanning());
    EXPECT_EQ(model.cleanup(), nullptr);

    ASSERT_TRUE(waitUntil([&] { return ended(model); }));
    const QString copy = disk.path() + QStringLiteral("/film.mov");
    EXPECT_EQ(model.moveSession()->outcome(), Mover::Outcome::moved(copy));
    EXPECT_EQ(model.moveSession()->copied(), 400'000);
    EXPECT_EQ(QFileInfo(copy).size(), 400'000);
    EXPECT_EQ(model.result(CategoryID::largeFiles).items, QList<CleanupItem>{other});
    EXPECT_FALSE(model.selection().contains(film.id));
    EXPECT_FALSE(model.isChangingFiles());

    model.startScan();
    EXPECT_FALSE(model.hasScanned()) << "the ended move's sheet is still open";
    model.closeMove();
    EXPECT_EQ(model.moveSession(), nullptr);
    model.startScan();
    EXPECT_TRUE(waitUntil([&] { return model.hasScanned(); }));
}

// The original was edited between the remover's last look and its move to the Trash: the row
// goes, as the original has left its place, but the outcome is the sentence, not a plain move.
TEST_F(AppModelMove, AnOriginalEditedAtTheLastMomentLeavesTheResultsWithASentence)
{
    home.file(QStringLiteral("Videos/film.mov"), 4000);
    const CleanupItem film = realRow(home, QStringLiteral("Videos/film.mov"));
    ModelFixture fixture({}, home.root(), [&](AppModel::Services& services) {
        services.moveItem = [&](const CleanupItem& item, const QString& destination, const Mover::Progress& progress,
                                const Mover::Environment& prepared) {
            Mover::Environment environment = prepared;
            environment.removal.trash = [&, trash = environment.removal.trash](const TrashRequest& request) {
                home.file(QStringLiteral("Videos/film.mov"), 4001);
                return trash(request);
            };
            return Mover::move(item, destination, progress, environment);
        };
    });
    AppModel& model = fixture.model();
    show(model, {film});

    ASSERT_TRUE(model.startMove(film, disk.path()));
    ASSERT_TRUE(waitUntil([&] { return ended(model); }));
    const Mover::Outcome outcome = model.moveSession()->outcome().value_or(Mover::Outcome{});
    EXPECT_EQ(outcome.kind, Mover::Outcome::Kind::changedLate) << qPrintable(outcome.reason);
    EXPECT_TRUE(model.result(CategoryID::largeFiles).items.isEmpty());
}

TEST_F(AppModelMove, QuittingStopsTheMoveAndRemovesTheUnfinishedCopyFirst)
{
    home.file(QStringLiteral("Backups/phone/Manifest.db"), 200'000);
    const CleanupItem backup = realRow(home, QStringLiteral("Backups/phone"));
    ModelFixture fixture({}, home.root(), [&](AppModel::Services& services) {
        useCopyTool(services, stallingCopyTool());
    });
    AppModel& model = fixture.model();
    show(model, {backup});
    ASSERT_TRUE(model.startMove(backup, disk.path()));
    ASSERT_TRUE(waitUntil([&] { return model.moveSession()->copied() > 0; }));

    bool quit = false;
    model.stopForQuit([&] {
        EXPECT_TRUE(ended(model)) << "quit before the move had ended";
        EXPECT_TRUE(QDir(disk.path()).isEmpty()) << "quit before the unfinished copy was removed";
        quit = true;
    });
    ASSERT_TRUE(waitUntil([&] { return quit; }, 20'000));
    EXPECT_EQ(model.moveSession()->outcome(), Mover::Outcome::failed(QStringLiteral("Stopped. The original wasn't changed.")));
    EXPECT_EQ(QFileInfo(home.path(QStringLiteral("Backups/phone/Manifest.db"))).size(), 200'000);
    EXPECT_EQ(model.result(CategoryID::largeFiles).items, QList<CleanupItem>{backup});
}

// The moved original lands in the real Trash, and the Trash row says so while the move's sheet
// is still open (that sheet holds every other list as it was).
TEST_F(AppModelMove, TheTrashRowGrowsByTheMovedOriginalAtOnce)
{
    QDir(SystemPlaces::trashFolder(home.root())).removeRecursively();
    home.file(QStringLiteral("Videos/film.mov"), 400'000);
    const CleanupItem film = realRow(home, QStringLiteral("Videos/film.mov"));
    std::atomic<int> reads = 0;
    ModelFixture fixture({std::make_shared<TrashScanner>()}, home.root(), [&](AppModel::Services& services) {
        services.readSystemState = [&reads](const QString&) {
            AppModel::SystemState state;
            state.freeBytes = 1'000'000'000 + ++reads;
            return state;
        };
    });
    AppModel& model = fixture.model();
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));
    EXPECT_TRUE(model.result(CategoryID::trash).items.isEmpty()) << "an empty Trash has no row";
    // Once the last read has landed, a new figure can only come from a new read.
    ASSERT_TRUE(waitUntil([&] { return model.systemState().freeBytes == 1'000'000'000 + reads; }));
    const std::optional<qint64> freeBefore = model.systemState().freeBytes;
    show(model, {film});

    ASSERT_TRUE(model.startMove(film, disk.path()));
    ASSERT_TRUE(waitUntil([&] { return ended(model); }));
    ASSERT_TRUE(waitUntil([&] {
        const CategoryResult trash = model.result(CategoryID::trash);
        return trash.state == CategoryResult::State::done && !trash.items.isEmpty()
            && trash.items.first().size >= 400'000;
    })) << "the Trash row was not measured again";
    EXPECT_NE(model.moveSession(), nullptr);
    EXPECT_TRUE(waitUntil([&] { return model.systemState().freeBytes != freeBefore; })) << "free space not read again";
}
