#include "WalkFixture.h"
#include "support/WalkRecorder.h"

#include <unistd.h>

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

// A tree big enough to be walked on two threads: the pieces' findings come back in the order
// one walk meets them, and a repository found in one piece still hides its files there without
// hiding a later sibling's.
TEST_F(WalkRepositories, BigTreeWalkedInPiecesKeepsWalkOrderAndRepositoryBounds)
{
    QStringList expectedCandidates;
    for (int project = 0; project < 30; ++project) {
        const QString base = QStringLiteral("scan/p%1").arg(project, 2, 10, QLatin1Char('0'));
        const bool repository = project % 3 == 0;
        const bool innerRepository = project % 5 == 0;
        if (repository)
            tree.dir(base + "/.git");
        if (innerRepository)
            tree.dir(base + "/lib/inner/.git");
        tree.file(base + "/package.json", QByteArray("{}"));
        tree.file(base + "/node_modules/left/index.js");
        for (const QString& big : {base + "/big.bin", base + "/lib/inner/big.bin", base + "/zz/big.bin"}) {
            tree.sparseFile(big, 2'000'000);
            if (!repository && !(innerRepository && big.contains("inner")))
                expectedCandidates.append(big);
        }
        const QByteArray filler = QFile::encodeName(tree.file(base + "/src/f0"));
        for (int i = 1; i < 700; ++i)  // links: a new file's inode is most of its making
            ::link(filler.constData(), filler.chopped(1) + QByteArray::number(i));
    }
    expectedCandidates.sort();

    // The order one walk meets things in, from a plain walk of the same tree.
    WalkRecorder order(QFile::encodeName(tree.root()));
    TreeWalker({}).walk(QFile::encodeName(tree.path("scan")), order);
    const auto position = [&](const QString& path) {
        const qsizetype item = order.lines.indexOf("item " + QFile::encodeName(path));
        return item >= 0 ? item : order.lines.indexOf("enter " + QFile::encodeName(path));
    };
    const auto inWalkOrder = [&](QStringList paths) {
        std::sort(paths.begin(), paths.end(), [&](const QString& a, const QString& b) { return position(a) < position(b); });
        return paths;
    };

    const Walk walk = walked({"scan"});

    QStringList found;
    for (const DuplicateFinder::File& file : walk.duplicateCandidates())
        found.append(relative(file.path));
    QStringList sorted = found;
    sorted.sort();
    EXPECT_EQ(sorted, expectedCandidates);
    EXPECT_EQ(found, inWalkOrder(expectedCandidates));
    QStringList builds;
    for (const Artifact& artifact : walk.artifacts())
        builds.append(relative(artifact.path));
    EXPECT_EQ(builds.size(), 30);
    EXPECT_EQ(builds, inWalkOrder(builds));
    EXPECT_EQ(walk.mainRepositories().size(), 10 + 6);
}
