// The history on the screens: the Overview's change since the previous full scan, and on the
// Storage screen each bucket's and folder's change and the folders that grew most since a
// chosen earlier analysis.
#include "model/HistoryRecorder.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "ui/GrewTheMost.h"
#include "ui/HistoryChart.h"
#include "ui/HistoryPanel.h"
#include "ui/OverviewPage.h"
#include "ui/StoragePage.h"

#include <QComboBox>
#include <QLabel>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <atomic>

namespace {

// Each analysis finds 1 MB more photos in ~/Pictures than the one before: 5, 6, 7 MB.
struct GrowingPhotos {
    std::shared_ptr<std::atomic<int>> runs = std::make_shared<std::atomic<int>>(0);

    std::optional<StorageReport> operator()(const StorageAnalyzer::Request&) const
    {
        const qint64 photos = 5'000'000 + 1'000'000LL * runs->fetch_add(1);
        StorageReport report;
        report.date = QDateTime::currentDateTimeUtc();
        report.totals.at(static_cast<size_t>(StorageBucket::photos)) = photos;
        report.totals.at(static_cast<size_t>(StorageBucket::apps)) = 2'000'000;
        report.folders.at(static_cast<size_t>(StorageBucket::photos)) = {{"/Users/a/Pictures", photos, {}, 4, {}},
                                                                         {"/Users/a/Desktop", 70'000, {}, 1, {}}};
        return report;
    }
};

std::shared_ptr<FakeScanner> projectsOf(qint64 bytes)
{
    ScanOutputs outputs;
    outputs[CategoryID::projects].items = {rowAt(CategoryID::projects, "/Users/a/code/node_modules", bytes)};
    outputs[CategoryID::docker].items = {rowAt(CategoryID::docker, "/Users/a/docker-image", bytes / 2)};
    return std::make_shared<FakeScanner>(QList<CategoryID>{CategoryID::projects, CategoryID::docker}, outputs);
}

int kept(const HistoryRecorder* history, HistoryRecord::Kind kind)
{
    const auto& records = history->records();
    return static_cast<int>(std::count_if(records.begin(), records.end(), [kind](const HistoryRecord& r) { return r.kind == kind; }));
}

}  // namespace

TEST(HistoryScreens, TheOverviewNamesWhatGrewSinceThePreviousScan)
{
    TempTree tree;
    const QString file = tree.path("history.sqlite");
    const auto at = [file](AppModel::Services& services) { services.historyFile = file; };
    {
        ModelFixture before({projectsOf(1'000'000)}, "/Users/a", at);
        before.model().startScan();
        ASSERT_TRUE(waitUntil([&] { return kept(before.model().history(), HistoryRecord::Kind::scan) == 1; }));
    }
    ModelFixture fixture({projectsOf(3'000'000)}, "/Users/a", at);
    OverviewPage page(&fixture.model());
    auto* panel = page.findChild<HistoryPanel*>();
    ASSERT_NE(panel, nullptr);
    ASSERT_TRUE(waitUntil([&] { return kept(fixture.model().history(), HistoryRecord::Kind::scan) == 1; }));
    EXPECT_TRUE(panel->change()->isHidden()) << "one scan has nothing to compare with";
    EXPECT_FALSE(page.findChild<HistoryChart*>()->isHidden());

    fixture.model().startScan();
    ASSERT_TRUE(waitUntil([&] { return kept(fixture.model().history(), HistoryRecord::Kind::scan) == 2; }));
    EXPECT_FALSE(panel->change()->isHidden());
    EXPECT_EQ(panel->change()->text(), "+3 MB since just now: Project Builds +2 MB, Docker +1 MB");
}

TEST(HistoryScreens, StorageShowsEachChangeAndTheFoldersThatGrewSinceTheChosenAnalysis)
{
    GrowingPhotos analysis;
    ModelFixture fixture({}, "/Users/a", [analysis](AppModel::Services& services) { services.analyzeStorage = analysis; });
    StoragePage page(&fixture.model());
    auto* grew = page.findChild<GrewTheMost*>();
    ASSERT_NE(grew, nullptr);
    for (int analyses = 1; analyses <= 3; ++analyses) {
        fixture.model().startStorageAnalysis();
        ASSERT_TRUE(waitUntil([&] { return kept(fixture.model().history(), HistoryRecord::Kind::storage) == analyses; }));
        ASSERT_TRUE(waitUntil([&] { return fixture.model().history()->storageComparison().has_value() == (analyses > 1); }));
        EXPECT_EQ(grew->isHidden(), analyses == 1);
    }
    // Photos grew by 1 MB since the previous analysis; applications stayed.
    EXPECT_EQ(page.legend()->topLevelItem(0)->text(1), "7 MB   ▲ +1 MB");
    EXPECT_EQ(page.legend()->topLevelItem(1)->text(1), "2 MB");
    EXPECT_EQ(page.details()->topLevelItem(0)->text(1), "7 MB   ▲ +1 MB");
    ASSERT_EQ(grew->folders()->topLevelItemCount(), 1) << "a folder that kept its size did not grow";
    EXPECT_EQ(grew->folders()->topLevelItem(0)->text(2), "+1 MB");

    // The first of the three analyses: two of growth since then.
    ASSERT_EQ(grew->earlier()->count(), 2);
    grew->earlier()->setCurrentIndex(1);
    emit grew->earlier()->activated(1);
    ASSERT_TRUE(waitUntil([&] { return grew->folders()->topLevelItem(0)->text(2) == "+2 MB"; }));
    EXPECT_EQ(page.legend()->topLevelItem(0)->text(1), "7 MB   ▲ +2 MB") << "the screen compares with the chosen one too";
    EXPECT_EQ(grew->earlier()->currentIndex(), 1);
}
