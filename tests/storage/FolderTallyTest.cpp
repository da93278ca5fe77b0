// The large-folder rule at its exact edges, fed allocated sizes directly: real files allocate
// whole blocks, so 999,999 or exactly 100,000,000 bytes can't be made on disk.
#include "storage/FolderTally.h"

#include <gtest/gtest.h>

namespace {

FolderTally withSmallFiles(qint64 count, qint64 eachBytes)
{
    FolderTally tally;
    for (qint64 i = 0; i < count; ++i)
        tally.addFile(StorageBucket::developer, eachBytes);
    return tally;
}

}  // namespace

TEST(FolderTally, SmallMeansBelowOneMillionAllocatedBytes)
{
    FolderTally tally;
    tally.addFile(StorageBucket::other, 999'999);
    tally.addFile(StorageBucket::other, 1'000'000);
    EXPECT_EQ(tally.fileCount, 2);
    EXPECT_EQ(tally.smallBytes, 999'999);
    EXPECT_EQ(tally.unlistedSmallFiles, 1);
}

TEST(FolderTally, ListedFromAThousandSmallFilesOfOneHundredMillionBytes)
{
    EXPECT_TRUE(withSmallFiles(1'000, 100'000).isLarge());
    EXPECT_FALSE(withSmallFiles(999, 100'100).isLarge()) << "999 files, even above 100,000,000 bytes";
    EXPECT_FALSE(withSmallFiles(1'000, 99'999).isLarge()) << "99,999,000 bytes";
}

TEST(FolderTally, SmallFilesMustBeAtLeastHalf)
{
    FolderTally half = withSmallFiles(1'000, 100'000);
    half.addFile(StorageBucket::videos, 50'000'000);
    half.addFile(StorageBucket::videos, 50'000'000);
    EXPECT_TRUE(half.isLarge()) << "exactly half small";
    half.addOwnBlocks(StorageBucket::other, 512);
    EXPECT_FALSE(half.isLarge()) << "one block more than twice the small bytes";
}

TEST(FolderTally, AListedChildAddsNothingToItsParentsListing)
{
    FolderTally parent = withSmallFiles(600, 100'000);
    const FolderTally listedChild = withSmallFiles(1'000, 100'000);
    ASSERT_TRUE(listedChild.isLarge());
    parent.absorb(listedChild, true);
    EXPECT_FALSE(parent.isLarge()) << "only 600 files of its own";
    EXPECT_EQ(parent.bytes, 160'000'000) << "its own total still holds everything";
    EXPECT_EQ(parent.unlistedBytes, 60'000'000);

    FolderTally grandparent = withSmallFiles(500, 100'000);
    grandparent.absorb(parent, false);
    EXPECT_TRUE(grandparent.isLarge()) << "1,100 unlisted small files of 110,000,000 bytes";
    EXPECT_EQ(grandparent.unlistedSmallBytes, 110'000'000);
}

TEST(FolderTally, NeverListedInsideAPackageOrWhenNotListable)
{
    FolderTally inside = withSmallFiles(2'000, 100'000);
    inside.insidePackage = true;
    EXPECT_FALSE(inside.isLarge());
    FolderTally unlistable = withSmallFiles(2'000, 100'000);
    unlistable.listable = false;
    EXPECT_FALSE(unlistable.isLarge());
}

TEST(FolderTally, KindIsTheForcedBucketElseTheLargestUnlistedShare)
{
    FolderTally tally;
    tally.addFile(StorageBucket::photos, 300);
    tally.addFile(StorageBucket::documents, 200);
    tally.addFile(StorageBucket::documents, 200);
    EXPECT_EQ(tally.listedKind(), StorageBucket::documents);
    tally.kind = StorageBucket::developer;
    EXPECT_EQ(tally.listedKind(), StorageBucket::developer);
}
