// The storage screens over a model whose analysis returns a known report: the drill-down from a
// bucket to its folders and into one folder, the ring's hit areas, and the large folders.
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/LargeFoldersPage.h"
#include "ui/StorageFolders.h"
#include "ui/StorageHeader.h"
#include "ui/StoragePage.h"
#include "ui/StorageRing.h"

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

StorageReport report()
{
    StorageReport report;
    report.date = QDateTime::currentDateTimeUtc();
    report.diskUsed = 10'000;
    report.totals.at(static_cast<size_t>(StorageBucket::photos)) = 5'000;
    report.totals.at(static_cast<size_t>(StorageBucket::apps)) = 2'000;
    StorageReport::FolderUsage pictures{"/Users/a/Pictures", 3'000, {{"/Users/a/Pictures/Trip/a.jpg", 900}}, 4,
                                        {{QString(), {100, 1}}, {"Trip", {2'900, 3}}}};
    StorageReport::FolderUsage library{"/Users/a/Pictures/Old.photoslibrary", 2'000, {}, 10, {}};
    report.folders.at(static_cast<size_t>(StorageBucket::photos)) = {pictures, library};
    report.largeFolders = {{"/Users/a/code/node_modules", 400'000'000, 5'000, 300'000'000, StorageBucket::developer}};
    return report;
}

class StoragePageTest : public ::testing::Test {
protected:
    StoragePageTest()
        : fixture({}, QStringLiteral("/Users/a"), [](AppModel::Services& services) {
              services.analyzeStorage = [](const StorageAnalyzer::Request&) { return std::optional(report()); };
          })
    {
    }

    void measure()
    {
        fixture.model().startStorageAnalysis();
        ASSERT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }));
    }

    static QStringList column(const QTreeWidget* list, int column)
    {
        QStringList texts;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            texts.append(list->topLevelItem(i)->text(column));
        return texts;
    }

    ModelFixture fixture;
};

}  // namespace

TEST_F(StoragePageTest, ClickingDrillsFromTheLargestBucketIntoAFolderAndBack)
{
    StoragePage page(&fixture.model());
    measure();
    EXPECT_EQ(column(page.legend(), 0), (QStringList{"Photos", "Applications", "System and Other Data"}))
        << "largest first, the remainder (10,000 - 7,000) last";
    EXPECT_EQ(column(page.details(), 0), (QStringList{"~/Pictures", "~/Pictures/Old.photoslibrary"}));

    emit page.details()->itemClicked(page.details()->topLevelItem(0), 0);
    EXPECT_EQ(page.place()->text(), "Photos  ›  ~/Pictures");
    EXPECT_EQ(column(page.details(), 0), (QStringList{"Trip/", "Files in this folder", "Trip/a.jpg"}))
        << "groups largest first, then the largest files";

    for (QPushButton* button : page.findChildren<QPushButton*>()) {
        if (button->text() == "Back")
            button->click();
    }
    EXPECT_EQ(page.details()->topLevelItemCount(), 2);
    emit page.legend()->itemClicked(page.legend()->topLevelItem(2), 0);  // the remainder has no folders
    EXPECT_EQ(page.place()->text(), "Photos");
    emit page.legend()->itemClicked(page.legend()->topLevelItem(1), 0);
    EXPECT_EQ(page.place()->text(), "Applications");
    EXPECT_EQ(page.details()->topLevelItemCount(), 0);
}

TEST_F(StoragePageTest, TheRingIsHitOnItsBandOnly)
{
    StorageRing ring;
    ring.resize(216, 216);  // a ring of 200 across, 32 thick, centred at (108, 108)
    ring.setSegments({{Qt::red, 750, "a"}, {Qt::blue, 250, "b"}}, "1 KB", "used");
    EXPECT_EQ(ring.segmentAt({200, 100}), 0) << "three o'clock lies in the first three quarters";
    EXPECT_EQ(ring.segmentAt({20, 100}), 1) << "nine o'clock, in the last quarter";
    EXPECT_EQ(ring.segmentAt({108, 108}), -1) << "the middle";
    EXPECT_EQ(ring.segmentAt({2, 2}), -1) << "outside";
}

TEST_F(StoragePageTest, LargeFoldersListTheReportAndTheHeaderFollowsTheAnalysis)
{
    LargeFoldersPage page(&fixture.model());
    auto* header = page.findChild<StorageHeader*>();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->button()->text(), "Measure Disk");
    EXPECT_EQ(page.list()->topLevelItemCount(), 0);
    EXPECT_TRUE(header->activity()->isHidden());
    fixture.model().startStorageAnalysis();
    EXPECT_FALSE(header->activity()->isHidden()) << "nothing moves while the disk is measured";
    ASSERT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }));
    EXPECT_TRUE(header->activity()->isHidden());
    EXPECT_EQ(header->button()->text(), "Measure Again");
    EXPECT_EQ(header->status()->text(), "Measured just now.");
    ASSERT_EQ(page.list()->topLevelItemCount(), 1);
    const QTreeWidgetItem* row = page.list()->topLevelItem(0);
    EXPECT_EQ(row->text(0), "~/code/node_modules");
    EXPECT_EQ(row->text(1), "400 MB");
    EXPECT_EQ(row->text(3), "75%");
    EXPECT_EQ(row->text(4), "Developer");
}

TEST_F(StoragePageTest, ALargeFolderSaysWhenStorageShowsItWhole)
{
    StorageReport withTree = report();
    withTree.tree = {"a", 0, 0, 0, 0, StorageBucket::other, {{"code", 0, 0, 0, 0, StorageBucket::developer,
        {{"node_modules", 700'000'000, 9'000, 0, 700'000'000, StorageBucket::developer, {}}}}}};
    ModelFixture whole({}, QStringLiteral("/Users/a"), [withTree](AppModel::Services& services) {
        services.analyzeStorage = [withTree](const StorageAnalyzer::Request&) { return std::optional(withTree); };
    });
    LargeFoldersPage page(&whole.model());
    whole.model().startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return page.list()->topLevelItemCount() == 1; }));
    EXPECT_EQ(page.list()->topLevelItem(0)->toolTip(1),
              "400 MB without the large folders listed inside it; the whole folder holds 700 MB, as Storage shows.");
}

TEST_F(StoragePageTest, ScrollsRatherThanMakingTheWindowTallerThanASmallScreen)
{
    StoragePage page(&fixture.model());
    measure();
    // A 1280x800 screen leaves the page about 680 pixels under the title, menu and toolbar.
    EXPECT_LT(page.minimumSizeHint().height(), 600);
}

// A desktop session without a language (LANG unset, the C locale) leaves out the thousands
// separator unless the count is told to keep it.
TEST(StorageFolders, FileCountsGroupTheirThousandsInTheCLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(StorageFolders::fileCount(30'242), "30,242 files");
    EXPECT_EQ(StorageFolders::fileCount(1), "1 file");
    QLocale::setDefault(before);
}
