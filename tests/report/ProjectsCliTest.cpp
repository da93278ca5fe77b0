#include "scan/ProjectScannerGit.h"
#include "support/CliScan.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

// The report tool over a developer's home: one walk lists builds, worktrees, large files and
// copies, each in its own category.
TEST(ProjectsCli, OneScanOfAHomeListsBuildsWorktreesLargeFilesAndDuplicates)
{
    TempTree tree;
    const QString home = tree.dir("home");
    tree.file("home/code/web/package.json");
    tree.file("home/code/web/node_modules/left-pad/index.js", 4000);
    tree.file("home/code/app/README", QByteArray("hello\n"));
    ProjectScannerGit::initRepository(tree.path("home/code/app"));
    const QString worktree = tree.path("home/code/app-feature");
    ProjectScannerGit::run(tree.path("home/code/app"), {"worktree", "add", "-q", "-b", "feature", worktree});
    tree.sparseFile("home/media/movie.mov", 250'000'000);
    tree.file("home/docs/report.pdf", 1'500'000, 'r');
    tree.file("home/backup/report.pdf", 1'500'000, 'r');

    const CliScan scan = CliScan::run(home);
    ASSERT_EQ(scan.program.exitCode, 0) << scan.program.standardError.constData();

    const QJsonArray projects = scan.items("projects");
    ASSERT_EQ(projects.size(), 1);
    EXPECT_EQ(projects[0]["title"].toString(), "web");
    EXPECT_EQ(projects[0]["safety"].toString(), "safe");
    EXPECT_EQ(projects[0]["paths"].toArray(), QJsonArray{tree.path("home/code/web/node_modules")});

    const QJsonArray worktrees = scan.items("worktrees");
    ASSERT_EQ(worktrees.size(), 1);
    EXPECT_EQ(worktrees[0]["id"].toString(), worktree);
    EXPECT_EQ(worktrees[0]["lockedReason"].toString(), "Changed in the last day; a session may be running.");
    EXPECT_TRUE(worktrees[0]["detail"].toString().endsWith("everything committed")) << qPrintable(worktrees[0]["detail"].toString());

    const QJsonArray large = scan.items("largeFiles");
    ASSERT_EQ(large.size(), 1);
    EXPECT_EQ(large[0]["title"].toString(), "~/media/movie.mov");

    const QJsonArray copies = scan.items("duplicates");
    ASSERT_EQ(copies.size(), 2);
    EXPECT_EQ(copies[0]["duplicateGroup"], copies[1]["duplicateGroup"]);
    EXPECT_NE(copies[0]["isOldestCopy"].toBool(), copies[1]["isOldestCopy"].toBool());
    QStringList copyPaths{copies[0]["id"].toString(), copies[1]["id"].toString()};
    copyPaths.sort();
    EXPECT_EQ(copyPaths, QStringList({tree.path("home/backup/report.pdf"), tree.path("home/docs/report.pdf")}));
}
