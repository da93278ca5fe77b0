#include "support/ModelFixture.h"
#include "support/Wait.h"

#include <gtest/gtest.h>

namespace {

ScanOutputs outputOf(CategoryID category, QList<CleanupItem> items)
{
    ScanOutputs outputs;
    outputs[category].items = std::move(items);
    return outputs;
}

const QString stoppedEarly = "The scan was stopped before this category finished.";
const QString stoppedLate = "The scan was stopped; this list may be incomplete.";

}  // namespace

TEST(AppModelScan, ListsFillInFinishingOrderAndTheScanIsRecorded)
{
    auto fast = std::make_shared<FakeScanner>(QList{CategoryID::packageCaches},
        outputOf(CategoryID::packageCaches, {rowAt(CategoryID::packageCaches, "/Users/a/.npm/_cacache")}));
    auto slow = std::make_shared<FakeScanner>(QList{CategoryID::logs},
        outputOf(CategoryID::logs, {rowAt(CategoryID::logs, "/Users/a/Library/Logs/App")}));
    slow->holdUntilReleased();
    ModelFixture fixture({slow, fast});
    AppModel& model = fixture.model();

    model.startScan();
    EXPECT_EQ(model.result(CategoryID::trash).state, CategoryResult::State::scanning);
    ASSERT_TRUE(waitUntil([&] { return model.result(CategoryID::packageCaches).state == CategoryResult::State::done; }));
    EXPECT_EQ(model.result(CategoryID::logs).state, CategoryResult::State::scanning);
    EXPECT_EQ(model.result(CategoryID::packageCaches).items.size(), 1);

    model.startScan();  // a second start while scanning changes nothing
    EXPECT_EQ(fast->runs(), 1);
    model.rescan(CategoryID::packageCaches);
    EXPECT_EQ(fast->runs(), 1);

    slow->release();
    ASSERT_TRUE(waitUntil([&] { return !model.isScanning(); }));
    EXPECT_EQ(model.result(CategoryID::logs).items.size(), 1);
    EXPECT_TRUE(model.result(CategoryID::logs).notes.isEmpty());
    ASSERT_TRUE(fixture.stats().stats().lastScan.has_value());
    EXPECT_EQ(fixture.stats().stats().lastScan->found, 2000);
}

TEST(AppModelScan, StopLeavesEveryCategoryDoneWithItsNoteAndRecordsNothing)
{
    auto fast = std::make_shared<FakeScanner>(QList{CategoryID::packageCaches},
        outputOf(CategoryID::packageCaches, {rowAt(CategoryID::packageCaches, "/Users/a/.npm/_cacache")}));
    auto slow = std::make_shared<FakeScanner>(QList{CategoryID::logs}, ScanOutputs{});
    slow->holdUntilReleased();
    ModelFixture fixture({fast, slow});
    AppModel& model = fixture.model();

    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return model.result(CategoryID::packageCaches).state == CategoryResult::State::done; }));
    model.stopScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));

    for (CategoryID category : Categories::allCases())
        EXPECT_EQ(model.result(category).state, CategoryResult::State::done);
    EXPECT_EQ(model.result(CategoryID::logs).notes, QStringList{stoppedEarly});
    EXPECT_TRUE(model.result(CategoryID::logs).items.isEmpty());
    EXPECT_TRUE(model.result(CategoryID::packageCaches).notes.isEmpty());  // finished before the stop
    EXPECT_FALSE(fixture.stats().stats().lastScan.has_value());
}

TEST(AppModelScan, OutputsArrivingAfterAStopAreMarkedIncomplete)
{
    ModelFixture fixture;
    fixture.model().apply(outputOf(CategoryID::logs, {rowAt(CategoryID::logs, "/Users/a/Library/Logs/A")}), true);
    EXPECT_EQ(fixture.model().result(CategoryID::logs).notes, QStringList{stoppedLate});
    EXPECT_EQ(fixture.model().result(CategoryID::logs).items.size(), 1);
}

// Rows are filtered on the scanner's thread with the Safe List the scan started with; one
// changed while a scanner still runs is what that scanner's rows are shown by.
TEST(AppModelScan, ScannedRowsAreFilteredByTheSafeListInForceWhenTheyArrive)
{
    CleanupItem tool = rowAt(CategoryID::appCaches, "/Users/a/Library/Caches/tool");
    tool.id = "docker:buildcache";
    auto caches = std::make_shared<FakeScanner>(QList{CategoryID::appCaches},
        outputOf(CategoryID::appCaches, {
            rowAt(CategoryID::appCaches, "/Users/a/Library/Caches/b"),
            tool,
            rowAt(CategoryID::appCaches, "/Users/a/Library/CloudStorage"),
            rowAt(CategoryID::appCaches, "/opt/shared/cache"),
            rowAt(CategoryID::appCaches, "/Users/a/Library/Caches/a"),
        }));
    auto logs = std::make_shared<FakeScanner>(QList{CategoryID::logs},
        outputOf(CategoryID::logs, {rowAt(CategoryID::logs, "/Users/a/Library/Logs/Kept/x.log"),
                                    rowAt(CategoryID::logs, "/Users/a/Library/Logs/Private/y.log")}));
    logs->holdUntilReleased();
    ModelFixture fixture({caches, logs});
    AppModel& model = fixture.model();
    fixture.settings().addSafeItem(tool);

    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return model.result(CategoryID::appCaches).state == CategoryResult::State::done; }));
    model.addSafeFolder("/Users/a/Library/Logs/Private");
    logs->release();
    ASSERT_TRUE(waitUntil([&] { return !model.isScanning(); }));

    const QList<CleanupItem> cached = model.result(CategoryID::appCaches).items;
    ASSERT_EQ(cached.size(), 3);
    EXPECT_EQ(cached[0].id, "/Users/a/Library/Caches/b");
    EXPECT_EQ(cached[1].id, "/opt/shared/cache");
    EXPECT_TRUE(cached[1].isLocked()) << "outside the home: shown, never removable";
    EXPECT_EQ(cached[2].id, "/Users/a/Library/Caches/a");
    EXPECT_FALSE(cached[2].isLocked());
    const QList<CleanupItem> logged = model.result(CategoryID::logs).items;
    ASSERT_EQ(logged.size(), 1) << "a folder made safe during the scan stays hidden";
    EXPECT_EQ(logged.first().id, "/Users/a/Library/Logs/Kept/x.log");
}

TEST(AppModelScan, RescanRerunsEveryScannerOfTheCategoryAndRefreshesTheirCategories)
{
    auto walk = std::make_shared<FakeScanner>(QList{CategoryID::projects, CategoryID::largeFiles},
        outputOf(CategoryID::largeFiles, {rowAt(CategoryID::largeFiles, "/Users/a/big.mov")}));
    auto other = std::make_shared<FakeScanner>(QList{CategoryID::logs}, ScanOutputs{});
    ModelFixture fixture({walk, other});
    AppModel& model = fixture.model();

    model.rescan(CategoryID::largeFiles);
    EXPECT_EQ(model.result(CategoryID::projects).state, CategoryResult::State::scanning);
    model.startScan();  // refused while a rescan runs
    EXPECT_FALSE(model.isScanning());
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));
    EXPECT_EQ(walk->runs(), 1);
    EXPECT_EQ(other->runs(), 0);
    EXPECT_EQ(model.result(CategoryID::largeFiles).items.size(), 1);
    EXPECT_EQ(model.result(CategoryID::logs).state, CategoryResult::State::idle);
}
