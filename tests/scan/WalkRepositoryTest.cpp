#include "WalkFixture.h"

using WalkRepositories = WalkFixture;

TEST_F(WalkRepositories, FilesInsideRepositoriesAreNotDuplicateCandidatesButStillLarge)
{
    git("scan/repo", {"init", "-q"});
    tree.sparseFile("scan/repo/src/asset.bin", 300'000'000);
    tree.sparseFile("scan/repo/small.bin", 2'000'000);
    tree.sparseFile("scan/free/a.bin", 2'000'000);
    tree.sparseFile("scan/zfree/b.bin", 2'000'000);
    const Walk walk = walked({"scan"});

    EXPECT_EQ(candidates(walk), QStringList({"scan/free/a.bin", "scan/zfree/b.bin"}));
    EXPECT_EQ(largeFiles(walk), QStringList({"scan/repo/src/asset.bin"}));
    EXPECT_EQ(mainRepositories(walk), QStringList({"scan/repo"}));
}

TEST_F(WalkRepositories, WorktreesAreRepositoriesButNotMainOnes)
{
    git("scan/main", {"init", "-q"});
    git("scan/main", {"commit", "-q", "--allow-empty", "-m", "start"});
    git("scan/main", {"worktree", "add", "-q", tree.path("scan/extra")});
    git("scan/main/vendor/inner", {"init", "-q"});
    tree.sparseFile("scan/extra/big", 2'000'000);
    tree.sparseFile("scan/main/vendor/inner/big", 2'000'000);
    const Walk walk = walked({"scan"});

    EXPECT_TRUE(walk.duplicateCandidates().isEmpty()) << qPrintable(candidates(walk).join(", "));
    EXPECT_EQ(mainRepositories(walk), QStringList({"scan/main", "scan/main/vendor/inner"}));
}

TEST_F(WalkRepositories, ScanFolderInsideAWorkingCopyCountsAsInsideIt)
{
    git("home/outer", {"init", "-q"});
    tree.sparseFile("home/outer/sub/scan/big", 300'000'000);
    tree.sparseFile("home/elsewhere/big", 2'000'000);
    const Walk walk = walked({"home/elsewhere", "home/outer/sub/scan"});

    EXPECT_EQ(candidates(walk), QStringList({"home/elsewhere/big"}));
    EXPECT_EQ(largeFiles(walk), QStringList({"home/outer/sub/scan/big"}));
    EXPECT_EQ(mainRepositories(walk), QStringList({"home/outer"}));
}

TEST_F(WalkRepositories, ClimbStopsAtTheHomeFolder)
{
    git("home", {"init", "-q"});
    tree.sparseFile("home/Projects/big", 2'000'000);
    const Walk walk = walked({"home/Projects"});
    EXPECT_EQ(candidates(walk), QStringList({"home/Projects/big"})) << "a home kept in git does not hide every file";
    EXPECT_TRUE(walk.mainRepositories().isEmpty());
}
