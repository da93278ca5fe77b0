// Measuring one folder again: the report with that folder spliced in equals a fresh measurement
// of the whole home, for changes in a plain folder, in a photo library, below a listed large
// folder and for a folder that is gone.
#include "StorageFixture.h"

#include "storage/StorageAnalyzer.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

// Readable failures: a folder of a kind's list as path, bytes, files and groups.
void PrintTo(const StorageReport::FolderUsage& usage, std::ostream* out)
{
    *out << usage.path.toStdString() << " " << usage.bytes << " B " << usage.fileCount << " files " << usage.files.size()
         << " named";
    for (auto group = usage.subfolders.cbegin(); group != usage.subfolders.cend(); ++group)
        *out << " [" << group.key().toStdString() << " " << group->bytes << " B " << group->fileCount << "]";
}

namespace {

class FolderSpliceTest : public ::testing::Test, public StorageFixture {
protected:
    StorageReport remeasured(const StorageReport& report, const QString& relative) const
    {
        const auto spliced = StorageAnalyzer::remeasure(request(), report, home + '/' + relative);
        EXPECT_TRUE(spliced.has_value()) << relative.toStdString();
        return spliced.value_or(StorageReport{});
    }

    // Equal in everything a full measurement decides; the date stays the first measurement's and
    // the entry count the first count. Among files of one size at the cut of a largest-files list
    // the walk keeps those it met first, which a splice can't know, so those lists are compared
    // by their sizes.
    static void expectSame(StorageReport spliced, StorageReport fresh)
    {
        fresh.date = spliced.date;
        fresh.entries = spliced.entries;
        for (StorageReport* report : {&spliced, &fresh}) {
            for (auto& list : report->folders) {
                for (StorageReport::FolderUsage& usage : list) {
                    for (StorageReport::FileUsage& file : usage.files)
                        file.path.clear();
                }
            }
        }
        EXPECT_EQ(spliced.tree, fresh.tree);
        EXPECT_EQ(spliced.totals, fresh.totals);
        for (StorageBucket bucket : StorageBuckets::allCases())
            EXPECT_EQ(spliced.foldersOf(bucket), fresh.foldersOf(bucket)) << StorageBuckets::rawValue(bucket).toStdString();
        EXPECT_EQ(spliced.largeFolders, fresh.largeFolders);
        EXPECT_EQ(spliced, fresh);
    }
};

}  // namespace

TEST_F(FolderSpliceTest, AFolderMeasuredAgainEqualsAFreshMeasurementOfTheHome)
{
    file("Pictures/a.jpg", 300'000);
    file("Pictures/2023/summer/b.png", 200'000);
    file("Pictures/2023/winter/c.png", 150'000);
    file("Pictures/2024/d.png", 90'000);
    file("Pictures/Old.photoslibrary/originals/x.heic", 400'000);
    file("Pictures/Old.photoslibrary/originals/2019/y.heic", 300'000);
    file("Pictures/Old.photoslibrary/database/notes.txt", 50'000);
    file("code/shop/src/main.cpp", 40'000);
    file("code/shop/docs/guide.pdf", 250'000);
    file("code/shop/node_modules/pkg/index.js", 60'000);
    file("code/shop/node_modules/pkg/logo.png", 30'000);
    file("code/old/notes.md", 200'000);
    file("Library/Caches/com.example/cache.db", 700'000);
    file("Library/Caches/com.example/sub/more.db", 80'000);
    for (int i = 0; i < 1'000; ++i)  // a large folder of small files, and a folder below it
        file(QStringLiteral("code/vendor/f%1.o").arg(i), 100'000);
    file("code/vendor/sub/keep.o", 100'000);
    StorageReport report = analyzed();
    ASSERT_EQ(report.largeFolders.size(), 1);

    struct Step {
        const char* folder;
        std::function<void()> change;
    };
    const std::vector<Step> steps{
        {"code/shop", [&] {
             file("code/shop/src/extra.cpp", 500'000);
             QFile::remove(home + "/code/shop/docs/guide.pdf");
             file("code/shop/node_modules/other/big.js", 900'000);
             file("code/shop/archive.zip", 120'000);
         }},
        {"Pictures/2023/summer", [&] {
             file("Pictures/2023/summer/e.jpg", 600'000);
             file("Pictures/2023/summer/notes.txt", 10'000);
         }},
        {"Pictures/Old.photoslibrary/originals", [&] {
             QFile::remove(home + "/Pictures/Old.photoslibrary/originals/x.heic");
             file("Pictures/Old.photoslibrary/originals/2020/z.heic", 800'000);
         }},
        {"code/vendor/sub", [&] { file("code/vendor/sub/new.o", 300'000); }},
        {"Library/Caches/com.example/sub", [&] { file("Library/Caches/com.example/sub/huge.db", 2'000'000); }},
        {"code/old", [&] { QDir(home + "/code/old").removeRecursively(); }},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.folder);
        step.change();
        report = remeasured(report, QString::fromUtf8(step.folder));
        expectSame(report, analyzed());
    }
    EXPECT_EQ(report.largeFolders.first().fileCount, 1'002) << "the listed folder above took the new file";
}

TEST_F(FolderSpliceTest, OnlyFoldersTheTreeKeepsBelowTheHomeAreMeasuredAlone)
{
    file("Documents/report.pdf", 120'000);
    file("Library/Caches/cache.db", 20'000);
    const StorageReport report = analyzed();
    for (const QString& folder : {home, home + "/Library", home + "/Nowhere", home + "/Documents/", QStringLiteral("/tmp")})
        EXPECT_FALSE(StorageAnalyzer::remeasure(request(), report, folder).has_value()) << folder.toStdString();
    EXPECT_TRUE(StorageAnalyzer::remeasure(request(), report, home + "/Library/Caches").has_value());
}
