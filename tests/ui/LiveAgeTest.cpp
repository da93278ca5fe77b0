// The lines that say when something was scanned or measured grow older on every screen with the
// model's one clock, and a folder of the storage map can be measured again from the map.
#include "support/FakeScanner.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/OverviewPage.h"
#include "ui/StorageFolders.h"
#include "ui/StorageHeader.h"
#include "ui/Sunburst.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

bool anyLabelReads(const QWidget& page, const QString& text)
{
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->text().contains(text))
            return true;
    }
    return false;
}

StorageReport reportAt(const QDateTime& date)
{
    StorageReport report;
    report.date = date;
    report.entries = 1'000;
    report.tree = {"a", 300, 3, 0, 0, StorageBucket::other, {{"code", 300, 3, 300, 0, StorageBucket::other, {}}}};
    return report;
}

}  // namespace

TEST(LiveAge, EveryScreensWhenLineGrowsOlderWithTheModelsClock)
{
    auto now = std::make_shared<QDateTime>(QDateTime::currentDateTimeUtc());
    ScanOutputs outputs;
    outputs[CategoryID::largeFiles].items = {rowAt(CategoryID::largeFiles, "/Users/a/big.iso")};
    auto scanner = std::make_shared<FakeScanner>(QList<CategoryID>{CategoryID::largeFiles}, outputs);
    ModelFixture fixture({scanner}, QStringLiteral("/Users/a"), [now](AppModel::Services& services) {
        services.now = [now] { return *now; };
        services.analyzeStorage = [now](const StorageAnalyzer::Request&) { return std::optional(reportAt(*now)); };
    });
    AppModel& model = fixture.model();
    OverviewPage overview(&model);
    CategoryPage category(&model);
    category.showCategory(CategoryID::largeFiles);
    StorageHeader header(&model, "Storage", {});
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isScanning() && !model.isAnalyzingStorage(); }));
    EXPECT_EQ(category.scanned()->text(), "Scanned just now");

    *now = now->addSecs(5 * 60 + 20);  // the statistics take their own clock a moment later
    emit model.clockTicked();
    EXPECT_TRUE(anyLabelReads(overview, "Last scan: 5 minutes ago")) << "the overview";
    EXPECT_EQ(category.scanned()->text(), "Scanned 5 minutes ago");
    EXPECT_EQ(header.status()->text(), "Measured 5 minutes ago.");
}

TEST(LiveAge, TheBarShowsTheShareOfTheEntriesTheLastReportCountedNeverGoingBack)
{
    std::atomic<bool> hold{false};
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&hold](AppModel::Services& services) {
        services.analyzeStorage = [&hold](const StorageAnalyzer::Request& request) -> std::optional<StorageReport> {
            while (hold && !request.cancellation.isCancelled())
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            return reportAt(QDateTime::currentDateTimeUtc());
        };
    });
    AppModel& model = fixture.model();
    StorageHeader header(&model, "Storage", {});
    hold = true;
    model.startStorageAnalysis();
    EXPECT_EQ(header.activity()->maximum(), 0) << "no report yet, so no guess of the end";
    hold = false;
    ASSERT_TRUE(waitUntil([&] { return model.storageReport().has_value() && !model.isAnalyzingStorage(); }));

    hold = true;
    model.startStorageAnalysis();
    model.progress()->addEntries(400);
    ASSERT_TRUE(waitUntil([&] { return header.activity()->value() == 400; }));
    EXPECT_EQ(header.activity()->maximum(), 1'000);
    model.progress()->addEntries(5'000);
    ASSERT_TRUE(waitUntil([&] { return header.activity()->value() > 400; }));
    EXPECT_EQ(header.activity()->value(), 990) << "held below the end while the walk goes on";
    model.progress()->reset();
    model.progress()->addEntries(100);
    ASSERT_TRUE(waitUntil([&] { return header.status()->text().contains("100 items looked at"); }));
    EXPECT_EQ(header.activity()->value(), 990) << "never going back";
    hold = false;
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
}

TEST(LiveAge, TheMapMeasuresTheFolderInTheMiddleAgain)
{
    QStringList asked;
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&asked](AppModel::Services& services) {
        services.analyzeStorage = [](const StorageAnalyzer::Request&) { return std::optional(reportAt(QDateTime::currentDateTimeUtc())); };
        services.remeasureStorage = [&asked](const StorageAnalyzer::Request&, const StorageReport& report, const QString& folder) {
            asked.append(folder);
            return std::optional(report);
        };
    });
    AppModel& model = fixture.model();
    StorageFolders folders(&model);
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
    EXPECT_FALSE(folders.remeasure()->isVisibleTo(&folders)) << "the home is measured with Measure Again";
    folders.sunburst()->zoomTo({"code"});
    ASSERT_TRUE(folders.remeasure()->isVisibleTo(&folders));
    ASSERT_TRUE(folders.remeasure()->isEnabled());
    folders.remeasure()->click();
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
    EXPECT_EQ(asked, QStringList{"/Users/a/code"});
}
