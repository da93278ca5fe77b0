// The model's storage analysis: started by a full scan or on its own, one at a time, the newest
// replacing the old, its report kept and summarised in the statistics.
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

// An analysis that waits until it is cancelled (when `hold` is set) or reports `bytes` of photos.
struct FakeAnalysis {
    std::atomic<bool> hold{false};
    std::atomic<int> runs{0};
    qint64 bytes = 1000;

    std::optional<StorageReport> operator()(const StorageAnalyzer::Request& request)
    {
        const qint64 mine = bytes + runs.fetch_add(1);
        while (hold && !request.cancellation.isCancelled())
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (request.cancellation.isCancelled())
            return std::nullopt;
        StorageReport report;
        report.totals.at(static_cast<size_t>(StorageBucket::photos)) = mine;
        report.diskUsed = request.diskUsed ? request.diskUsed().value_or(0) : 0;
        return report;
    }
};

ModelFixture fixtureWith(FakeAnalysis& analysis, const QString& home = QStringLiteral("/Users/a"))
{
    return ModelFixture({}, home, [&analysis](AppModel::Services& services) {
        services.analyzeStorage = [&analysis](const StorageAnalyzer::Request& request) { return analysis(request); };
        services.diskUsed = [](const QString&) { return std::optional<qint64>(5000); };
    });
}

}  // namespace

TEST(AppModelStorage, AFullScanStartsTheAnalysisAndItsSummaryIsRecorded)
{
    FakeAnalysis analysis;
    ModelFixture fixture = fixtureWith(analysis);
    fixture.model().startScan();
    ASSERT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }));
    EXPECT_FALSE(fixture.model().isAnalyzingStorage());
    const auto& summary = fixture.stats().stats().lastStorage;
    ASSERT_TRUE(summary.has_value());
    EXPECT_EQ(summary->totals.value(QStringLiteral("photos")), 1000);
    EXPECT_EQ(summary->notMeasured, 4000) << "used space the walk could not attribute";
}

TEST(AppModelStorage, ANewAnalysisReplacesTheRunningOneAndAStopKeepsTheLastReport)
{
    FakeAnalysis analysis;
    ModelFixture fixture = fixtureWith(analysis);
    AppModel& model = fixture.model();
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return model.storageReport().has_value(); }));

    analysis.hold = true;
    model.startStorageAnalysis();
    model.startStorageAnalysis();  // replaces the held one, which is cancelled
    ASSERT_TRUE(waitUntil([&] { return analysis.runs == 3; }));
    EXPECT_TRUE(model.isAnalyzingStorage());
    model.stopScan();
    EXPECT_FALSE(model.isAnalyzingStorage());
    ASSERT_TRUE(waitUntil([&] { return analysis.runs == 3 && !model.isAnalyzingStorage(); }));
    EXPECT_EQ(model.storageReport()->total(StorageBucket::photos), 1000) << "the first report stays";

    analysis.hold = false;
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
    EXPECT_EQ(model.storageReport()->total(StorageBucket::photos), 1003);
}

TEST(AppModelStorage, TheRealAnalysisMeasuresTheSettingsHome)
{
    TempTree tree;
    tree.file(QStringLiteral("Pictures/a.jpg"), 300'000);
    ModelFixture fixture({}, tree.root(), [](AppModel::Services& services) {
        services.diskUsed = [](const QString&) { return std::optional<qint64>(10'000'000); };
    });
    fixture.model().startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }));
    const StorageReport& report = *fixture.model().storageReport();
    EXPECT_GE(report.total(StorageBucket::photos), 300'000);
    EXPECT_EQ(fixture.stats().stats().lastStorage->notMeasured, 10'000'000 - report.measured());
}

TEST(AppModelStorage, AFolderOnTheSafeListHidesTheRowsInsideIt)
{
    ModelFixture fixture;
    const CleanupItem inside = rowAt(CategoryID::projects, "/Users/a/code/shop/node_modules");
    const CleanupItem beside = rowAt(CategoryID::projects, "/Users/a/codex/node_modules");
    ScanOutputs outputs;
    outputs[CategoryID::projects].items = {inside, beside};
    fixture.model().apply(outputs, false);
    fixture.model().addFolderToSafeList("/Users/a/code");
    EXPECT_EQ(fixture.model().result(CategoryID::projects).items, QList<CleanupItem>{beside});
    EXPECT_TRUE(fixture.settings().safeFolders().contains("/Users/a/code"));
    EXPECT_EQ(fixture.model().toast(), "“code” is on the Safe List.");
}

// A folder measured again replaces its part of the report, which keeps its date and is not a
// new measurement for the history; the out-of-date mark goes only with the places that changed.
TEST(AppModelStorage, AFolderMeasuredAgainUpdatesTheReportAndOnlyItsOwnChanges)
{
    TempTree tree;
    tree.file(QStringLiteral("Pictures/a.jpg"), 300'000);
    tree.file(QStringLiteral("Documents/b.pdf"), 100'000);
    ModelFixture fixture({}, tree.root());
    AppModel& model = fixture.model();
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return model.storageReport().has_value() && !model.isAnalyzingStorage(); }));
    const StorageReport first = *model.storageReport();
    const QString pictures = tree.path(QStringLiteral("Pictures"));
    EXPECT_FALSE(model.canRemeasureFolder(tree.root())) << "the whole home is Measure Again";
    ASSERT_TRUE(model.canRemeasureFolder(pictures));

    tree.file(QStringLiteral("Pictures/c.jpg"), 500'000);
    model.remeasureFolder(pictures);
    EXPECT_EQ(model.storageFolderMeasured(), pictures);
    EXPECT_FALSE(model.canRemeasureFolder(pictures)) << "one analysis at a time";
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
    const StorageReport& second = *model.storageReport();
    EXPECT_GE(second.total(StorageBucket::photos) - first.total(StorageBucket::photos), 500'000);
    EXPECT_EQ(second.tree.bytes - first.tree.bytes, second.measured() - first.measured());
    EXPECT_EQ(second.date, first.date);
    EXPECT_EQ(fixture.stats().stats().lastStorage->totals, first.rawTotals()) << "not recorded as a measurement";
}

TEST(StorageStaleness, AFolderMeasuredAgainCoversOnlyTheChangesInsideIt)
{
    StorageStaleness staleness;
    EXPECT_FALSE(staleness.isOutdated());
    staleness.noteGone({"/h/Downloads/a.zip"});
    staleness.noteGrown("/h/.local/share/Trash/files");
    EXPECT_EQ(staleness.gone(), QStringList{"/h/Downloads/a.zip"}) << "the Trash's rows did not go away";
    staleness.measuredAgain("/h/Down");
    staleness.measuredAgain("/h/Downloads");
    EXPECT_TRUE(staleness.gone().isEmpty());
    EXPECT_TRUE(staleness.isOutdated()) << "the Trash took what left Downloads";
    staleness.measuredAgain("/h/.local/share/Trash");
    EXPECT_FALSE(staleness.isOutdated());
    staleness.noteGone({});
    staleness.measuredAgain("/h");
    EXPECT_TRUE(staleness.isOutdated()) << "a change in no known place waits for a full measurement";
    staleness.clear();
    EXPECT_FALSE(staleness.isOutdated());
}
