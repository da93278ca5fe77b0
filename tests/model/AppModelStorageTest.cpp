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
