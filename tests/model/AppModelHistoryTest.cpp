// The app keeps every finished full scan and storage analysis in the history, off the GUI
// thread, and a later launch reads them back and tells what grew.
#include "model/HistoryDigest.h"
#include "model/HistoryRecorder.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <QFileInfo>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace {

std::shared_ptr<FakeScanner> projectsOf(qint64 bytes)
{
    ScanOutputs outputs;
    outputs[CategoryID::projects].items = {rowAt(CategoryID::projects, QStringLiteral("/Users/a/code/web/node_modules"), bytes)};
    return std::make_shared<FakeScanner>(QList<CategoryID>{CategoryID::projects}, outputs);
}

// A launch of the app whose history lives in `file` and whose storage analysis measures `photos`.
ModelFixture launch(std::shared_ptr<FakeScanner> scanner, const QString& file, qint64 photos)
{
    return ModelFixture({scanner}, QStringLiteral("/Users/a"), [file, photos](AppModel::Services& services) {
        services.historyFile = file;
        services.analyzeStorage = [photos](const StorageAnalyzer::Request&) {
            StorageReport report;
            report.date = QDateTime::currentDateTimeUtc();
            report.totals.at(static_cast<size_t>(StorageBucket::photos)) = photos;
            report.folders.at(static_cast<size_t>(StorageBucket::photos)) = {{QStringLiteral("/Users/a/Pictures"), photos, {}, 3, {}}};
            return std::optional<StorageReport>(report);
        };
    });
}

int countOf(const QList<HistoryRecord>& records, HistoryRecord::Kind kind)
{
    return static_cast<int>(std::count_if(records.begin(), records.end(), [kind](const HistoryRecord& r) { return r.kind == kind; }));
}

}  // namespace

TEST(AppModelHistory, EveryFullScanAndAnalysisIsKeptAndTheNextLaunchSeesWhatGrew)
{
    TempTree tree;
    const QString file = tree.path("data/history.sqlite");
    {
        ModelFixture first = launch(projectsOf(1'000'000), file, 5'000);
        first.model().startScan();
        ASSERT_TRUE(waitUntil([&] {
            const auto& kept = first.model().history()->records();
            return countOf(kept, HistoryRecord::Kind::scan) == 1 && countOf(kept, HistoryRecord::Kind::storage) == 1;
        }));
        EXPECT_FALSE(HistoryDigest::sinceLastScan(first.model().history()->records(), QDateTime::currentDateTimeUtc()));
        // A rescan of one category is no full scan.
        first.model().rescan(CategoryID::projects);
        ASSERT_TRUE(waitUntil([&] { return !first.model().isScanning(); }));
    }
    ModelFixture second = launch(projectsOf(3'500'000), file, 9'000);
    ASSERT_TRUE(waitUntil([&] { return second.model().history()->records().size() == 2; }));
    second.model().startScan();
    ASSERT_TRUE(waitUntil([&] { return second.model().history()->records().size() == 4; }));
    const QList<HistoryRecord>& kept = second.model().history()->records();
    EXPECT_EQ(countOf(kept, HistoryRecord::Kind::scan), 2);
    EXPECT_TRUE(second.model().history()->notes().isEmpty());
    const auto digest = HistoryDigest::sinceLastScan(kept, QDateTime::currentDateTimeUtc());
    ASSERT_TRUE(digest);
    EXPECT_EQ(*digest, QStringLiteral("+2.5 MB since just now: Project Builds +2.5 MB")) << qPrintable(*digest);
}

TEST(AppModelHistory, AStoppedScanIsNotKept)
{
    TempTree tree;
    const QString file = tree.path("history.sqlite");
    auto scanner = projectsOf(1'000);
    scanner->holdUntilReleased();
    ModelFixture fixture = launch(scanner, file, 5'000);
    fixture.model().startScan();
    fixture.model().stopScan();
    ASSERT_TRUE(waitUntil([&] { return !fixture.model().isScanning() && !fixture.model().isAnalyzingStorage(); }));
    fixture.model().history()->refresh();
    QCoreApplication::processEvents();
    ASSERT_TRUE(waitUntil([&] { return QFileInfo::exists(file); }));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(countOf(fixture.model().history()->records(), HistoryRecord::Kind::scan), 0);
}
