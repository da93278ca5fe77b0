// Bounded lists: the largest files survive the sort-and-cut whatever their order of arrival, and
// the merge of many roots keeps the largest folders and large folders, a shared path summed.
#include "storage/FolderUsageBuilder.h"
#include "storage/StorageAnalyzer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

StorageReport::FolderUsage usage(const QString& path, qint64 bytes)
{
    return {path, bytes, {{path + "/f", bytes}}, 1, {}};
}

}  // namespace

TEST(StorageLists, TheThirtyLargestFilesSurviveAnyOrderOfArrival)
{
    std::vector<qint64> sizes(500);
    std::iota(sizes.begin(), sizes.end(), 1);
    std::shuffle(sizes.begin(), sizes.end(), std::mt19937(7));
    FolderUsageBuilder builder(QStringLiteral("/h/Pictures"));
    int named = 0;
    for (qint64 size : sizes) {
        builder.addFile(size, "album", true, [&] {
            ++named;
            return QStringLiteral("/h/Pictures/album/%1.jpg").arg(size);
        });
    }
    const StorageReport::FolderUsage result = std::move(builder).finish();
    ASSERT_EQ(result.files.size(), StorageReport::filesKept);
    EXPECT_EQ(result.files.first().bytes, 500);
    EXPECT_EQ(result.files.last().bytes, 471);
    EXPECT_EQ(result.fileCount, 500);
    EXPECT_EQ(result.bytes, 500 * 501 / 2);
    EXPECT_EQ(result.subfolders.value(QStringLiteral("album")).fileCount, 500);
    EXPECT_LT(named, 250) << "files below the kept ones are not even named";
}

TEST(StorageLists, MergeKeepsTheLargestFoldersAndSumsASharedPath)
{
    std::vector<StoragePartial> partials(3);
    for (int i = 0; i < 300; ++i) {
        StoragePartial& partial = partials.at(static_cast<size_t>(i % 3));
        const StorageReport::FolderUsage folder = usage(QStringLiteral("/h/p%1/node_modules").arg(i), 1000 + i);
        partial.folders.at(static_cast<size_t>(StorageBucket::developer)).insert(folder.path, folder);
        partial.largeFolders.append({folder.path, folder.bytes, 1000, folder.bytes, StorageBucket::developer});
    }
    // Loose files of two roots both belong to the home.
    partials[0].folders.at(static_cast<size_t>(StorageBucket::archives)).insert("/h", usage("/h", 10));
    partials[2].folders.at(static_cast<size_t>(StorageBucket::archives)).insert("/h", usage("/h", 15));

    const StorageReport report = StorageAnalyzer::merge(std::move(partials));
    const auto& developer = report.foldersOf(StorageBucket::developer);
    ASSERT_EQ(developer.size(), StorageReport::foldersKept);
    EXPECT_EQ(developer.first().bytes, 1299);
    EXPECT_EQ(developer.last().bytes, 1100);
    ASSERT_EQ(report.largeFolders.size(), StorageReport::largeFoldersKept);
    EXPECT_EQ(report.largeFolders.first().bytes, 1299);
    EXPECT_EQ(report.largeFolders.last().bytes, 1200);
    ASSERT_EQ(report.foldersOf(StorageBucket::archives).size(), 1);
    EXPECT_EQ(report.foldersOf(StorageBucket::archives).first().bytes, 25);
    EXPECT_EQ(report.foldersOf(StorageBucket::archives).first().files.size(), 2);
}

TEST(StorageLists, AFileLinkedFromSeveralRootsCountsOnceInTheFirstRootsBucket)
{
    std::vector<StoragePartial> partials(2);
    const FileKey key{1, 42};
    partials[0].links.insert(key, {StorageBucket::documents, 8192});
    partials[1].links.insert(key, {StorageBucket::other, 8192});
    partials[1].links.insert({1, 43}, {StorageBucket::other, 4096});
    partials[1].totals.at(static_cast<size_t>(StorageBucket::other)) = 100;
    const StorageReport report = StorageAnalyzer::merge(std::move(partials));
    EXPECT_EQ(report.total(StorageBucket::documents), 8192);
    EXPECT_EQ(report.total(StorageBucket::other), 4196);
    EXPECT_EQ(report.measured(), 12'388);
}

TEST(StorageLists, NotMeasuredIsTheUsedSpaceLeftOverNeverNegative)
{
    StorageReport report;
    report.totals.at(static_cast<size_t>(StorageBucket::apps)) = 700;
    report.totals.at(static_cast<size_t>(StorageBucket::trash)) = 300;
    EXPECT_EQ(report.notMeasured(), 0) << "unknown used space";
    report.diskUsed = 1500;
    EXPECT_EQ(report.notMeasured(), 500);
    report.diskUsed = 900;
    EXPECT_EQ(report.notMeasured(), 0);
    EXPECT_EQ(report.sortedBuckets().first(), qMakePair(StorageBucket::apps, qint64{700}));
    EXPECT_EQ(report.rawTotals().value(QStringLiteral("trash")), 300);
}
