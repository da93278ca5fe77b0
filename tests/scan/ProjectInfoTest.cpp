#include "scan/ProjectInfo.h"
#include "support/TempTree.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace {

constexpr qint64 jan2020 = 1'577'836'800;
constexpr qint64 day = 86'400;

QDateTime at(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc());
}

class ProjectInfoTest : public ::testing::Test {
protected:
    ProjectInfoTest() : home(tree.dir("home")) {}

    TempTree tree;
    QString home;
};

}  // namespace

TEST_F(ProjectInfoTest, RootIsTheNearestGitFolderBelowHomeAndNamesNestedProjects)
{
    tree.dir("home/.git");  // dotfiles under git make no repository of every project
    tree.dir("home/mono/.git");
    tree.file("home/wt/.git", QByteArray("gitdir: /elsewhere\n"));  // a worktree's .git file counts
    tree.dir("home/mono/packages/web");
    tree.dir("home/wt/app");
    tree.dir("home/loose/app");

    const ProjectInfo nested = ProjectInfo::of(tree.path("home/mono/packages/web"), home);
    EXPECT_EQ(nested.root, tree.path("home/mono"));
    EXPECT_EQ(nested.title, "mono/packages/web");
    EXPECT_EQ(ProjectInfo::repositoryRoot(tree.path("home/wt/app"), home), tree.path("home/wt"));
    EXPECT_EQ(ProjectInfo::repositoryRoot(tree.path("home/mono"), home), tree.path("home/mono"));

    const ProjectInfo alone = ProjectInfo::of(tree.path("home/loose/app"), home);
    EXPECT_EQ(alone.root, alone.path) << "home's own .git is not the project's";
    EXPECT_EQ(alone.title, "app");
}

TEST_F(ProjectInfoTest, GitDatesFollowAGitdirFileToTheRealMetadata)
{
    tree.file("home/repo/.git/worktrees/wt/HEAD", QByteArray("ref: refs/heads/x\n"));
    tree.file("home/repo/.git/worktrees/wt/index", QByteArray("DIRC"));
    tree.setTimes("home/repo/.git/worktrees/wt/HEAD", jan2020);
    tree.setTimes("home/repo/.git/worktrees/wt/index", jan2020 + day);
    tree.file("home/wt/.git", QByteArray("gitdir: ../repo/.git/worktrees/wt\n"));

    EXPECT_EQ(ProjectInfo::gitFileTarget(tree.path("home/wt")), tree.path("home/repo/.git/worktrees/wt"));
    EXPECT_EQ(ProjectInfo::gitDates(tree.path("home/wt")), QList<QDateTime>({at(jan2020), at(jan2020 + day)}));

    tree.file("home/odd/.git", QByteArray("not a gitdir line\n"));
    EXPECT_TRUE(ProjectInfo::gitDates(tree.path("home/odd")).isEmpty());
    EXPECT_TRUE(ProjectInfo::gitDates(tree.path("home/none")).isEmpty());
}

TEST_F(ProjectInfoTest, NewestChangeLooksAtThreeLevelsAndSkipsHiddenAndBuildFolders)
{
    const QString project = tree.dir("home/p");
    tree.file("home/p/src/lib/util.c");
    tree.setTimes("home/p/src/lib/util.c", jan2020 + 3 * day);  // level 3: counts
    for (const char* ignored : {"home/p/src/lib/deep/newer.c", "home/p/.idea/newer.xml",
                                "home/p/node_modules/newer.js", "home/p/build/newer.o"}) {
        tree.file(ignored);
        tree.setTimes(ignored, jan2020 + 9 * day);
    }
    EXPECT_EQ(ProjectInfo::newestChange(project, ProjectInfo::projectEntryLimit), at(jan2020 + 3 * day));

    // The file comes fourth at the earliest: after the project folder, "src" and "lib".
    EXPECT_EQ(ProjectInfo::newestChange(project, 3), std::nullopt) << "the limit stops before the file";

    tree.file("home/q/a/b/c/only.txt");
    EXPECT_EQ(ProjectInfo::newestChange(tree.path("home/q"), 5000), std::nullopt);
    EXPECT_EQ(ProjectInfo::of(tree.path("home/q"), home).lastActivity, std::nullopt)
        << "no git and no file near the top: no activity";
}

TEST_F(ProjectInfoTest, LastActivityIsTheNewerOfGitAndTheWorkingCopy)
{
    tree.file("home/repo/.git/HEAD", QByteArray("ref: refs/heads/main\n"));
    tree.file("home/repo/.git/index", QByteArray("DIRC"));
    tree.file("home/repo/app/package.json");
    tree.setTimes("home/repo/.git/HEAD", jan2020);
    tree.setTimes("home/repo/.git/index", jan2020 + 5 * day);
    tree.setTimes("home/repo/app/package.json", jan2020 + 2 * day);
    EXPECT_EQ(ProjectInfo::of(tree.path("home/repo/app"), home).lastActivity, at(jan2020 + 5 * day));

    tree.setTimes("home/repo/app/package.json", jan2020 + 7 * day);
    EXPECT_EQ(ProjectInfo::of(tree.path("home/repo/app"), home).lastActivity, at(jan2020 + 7 * day));
}
