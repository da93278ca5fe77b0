#include "format/RelativeDate.h"
#include "scan/ProjectScannerGit.h"
#include "scan/WorktreeFinder.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using ProjectScannerGit::run;

// A repository "home/code/app" with one commit, and worktrees added beside it on demand.
class WorktreeFinderTest : public ::testing::Test {
protected:
    WorktreeFinderTest() : home(tree.dir("home")), repository(tree.dir("home/code/app"))
    {
        tree.file("home/code/app/README", QByteArray("hello\n"));
        ProjectScannerGit::initRepository(repository);
        context.home = home;
        context.roots = {home};
        context.now = QDateTime::currentDateTimeUtc().addDays(10);  // everything made here is old
    }

    // `git worktree add` of a new branch named after the folder, or detached.
    QString addWorktree(const QString& relative, bool detached = false) const
    {
        const QString path = tree.path(relative);
        QStringList arguments{"worktree", "add", "-q"};
        arguments << (detached ? QStringList{"--detach", path} : QStringList{"-b", QDir(path).dirName(), path});
        run(repository, arguments);
        return path;
    }

    QString metadataOf(const QString& worktree) const
    {
        return repository + "/.git/worktrees/" + QDir(worktree).dirName();
    }

    ScanOutput items(const QStringList& gitCandidates = {"/usr/bin/git"}) const
    {
        return WorktreeFinder::items({repository}, context, gitCandidates);
    }

    QStringList ids(const ScanOutput& output) const
    {
        QStringList found;
        for (const CleanupItem& item : output.items)
            found << item.id;
        return found;
    }

    QString changed(const CleanupItem& item) const
    {
        return item.date ? "changed " + RelativeDate::format(*item.date, context.now) + " · " : QString();
    }

    // A stand-in for a git that is installed but fails every command.
    QString brokenGit() const
    {
        const QString path = tree.file("bin/git", QByteArray("#!/bin/sh\necho 'fatal: broken' >&2\nexit 128\n"));
        ::chmod(QFile::encodeName(path).constData(), 0755);
        return path;
    }

    TempTree tree;
    QString home;
    QString repository;
    ScanContext context;
};

}  // namespace

TEST_F(WorktreeFinderTest, RowsTellWhatWorkExistsNowhereElse)
{
    const QString feature = addWorktree("home/code/feature");
    const QString loose = addWorktree("home/code/loose", true);
    for (int commit = 1; commit <= 3; ++commit) {
        tree.file("home/code/loose/file" + QString::number(commit));
        ProjectScannerGit::commitAll(loose);
    }
    const QString dirty = addWorktree("home/code/dirty");
    tree.file("home/code/dirty/README", QByteArray("changed\n"));
    tree.file("home/code/dirty/notes.txt");

    const ScanOutput output = items();
    ASSERT_EQ(ids(output), QStringList({dirty, feature, loose}));
    const CleanupItem& featureRow = output.items[1];
    const CleanupItem& looseRow = output.items[2];
    EXPECT_EQ(RelativeDate::expand(output.items[0].detail, context.now), changed(output.items[0]) + "2 files not committed");
    EXPECT_EQ(RelativeDate::expand(featureRow.detail, context.now), changed(featureRow) + "everything committed");
    EXPECT_EQ(featureRow.badge, "feature");
    EXPECT_EQ(RelativeDate::expand(looseRow.detail, context.now), changed(looseRow) + "everything committed · 3 commits on no branch");
    EXPECT_EQ(looseRow.badge, "No branch");

    EXPECT_EQ(featureRow.projectPath, repository);
    EXPECT_EQ(featureRow.safety(home), Safety::risky);
    const QList<FileTarget> targets = featureRow.removal.as<Removal::Trash>()->targets;
    ASSERT_EQ(targets.size(), 2);
    EXPECT_EQ(targets[0].path, feature);
    EXPECT_TRUE(targets[0].quietForADay);
    EXPECT_EQ(targets[1].path, metadataOf(feature));
    for (const FileTarget& target : targets)
        EXPECT_EQ(target.gitLockFile, metadataOf(feature) + "/locked");
}

TEST_F(WorktreeFinderTest, LockedInGitRecentOrUndatedWorktreesAreLocked)
{
    const QString feature = addWorktree("home/code/feature");
    run(repository, {"worktree", "lock", feature});
    ScanOutput output = items();
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(output.items[0].lockedReason, "Locked in git (git worktree lock).");

    run(repository, {"worktree", "unlock", feature});
    context.now = QDateTime::currentDateTimeUtc();
    output = items();
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(output.items[0].lockedReason, "Changed in the last day; a session may be running.");

    // No file inside and no git files to date it: an unknown age counts as recent.
    const WorktreeFinder::Worktree undated{repository, tree.dir("home/code/bare"), tree.dir("home/meta"), QString("x"), false};
    context.now = QDateTime::currentDateTimeUtc().addYears(5);
    const std::optional<CleanupItem> row = WorktreeFinder::row(undated, context, std::nullopt);
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(row->date, std::nullopt);
    EXPECT_EQ(row->lockedReason, "Changed in the last day; a session may be running.");
}

TEST_F(WorktreeFinderTest, RelativeGitdirsResolveAgainstTheMetadataFolder)
{
    const QString feature = addWorktree("home/code/feature");
    tree.file("home/code/app/.git/worktrees/feature/gitdir", QByteArray("../../../../feature/.git\n"));
    tree.file("home/code/feature/.git", QByteArray("gitdir: ../app/.git/worktrees/feature\n"));

    const QList<WorktreeFinder::Worktree> found = WorktreeFinder::worktrees(repository);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].path, feature);
    EXPECT_TRUE(WorktreeFinder::pointsBack(feature, metadataOf(feature)));
}

TEST_F(WorktreeFinderTest, StaleRepointedOrLinkedMetadataGivesNoRow)
{
    const QString deleted = addWorktree("home/code/deleted");
    const QString repointed = addWorktree("home/code/repointed");
    const QString linked = addWorktree("home/code/linked");
    const QString notGit = addWorktree("home/code/notgit");
    QDir(deleted).removeRecursively();
    tree.file("home/code/repointed/.git", "gitdir: " + QFile::encodeName(metadataOf(linked)) + "\n");
    QDir().rename(linked, tree.path("home/code/linked-real"));
    tree.symlink("home/code/linked", tree.path("home/code/linked-real"));
    tree.file("home/code/app/.git/worktrees/notgit/gitdir", QFile::encodeName(notGit) + "/.gitfile\n");

    EXPECT_TRUE(WorktreeFinder::worktrees(repository).isEmpty());
    EXPECT_FALSE(WorktreeFinder::pointsBack(repointed, metadataOf(repointed)));
    EXPECT_TRUE(items().items.isEmpty());
}

TEST_F(WorktreeFinderTest, SafeListSyncedAndOutsideHomeWorktreesAreNotOffered)
{
    const QString kept = addWorktree("home/code/kept");
    addWorktree("home/Dropbox (Personal)/synced");
    addWorktree("home/safe/inside/safe");
    addWorktree("elsewhere/outside");
    context.safeFolders = {tree.path("home/safe")};

    EXPECT_EQ(WorktreeFinder::worktrees(repository).size(), 4);
    EXPECT_EQ(ids(items()), QStringList{kept});
}

TEST_F(WorktreeFinderTest, WithoutAWorkingGitRowsSayTheirChangesWereNotChecked)
{
    const QString feature = addWorktree("home/code/feature");
    ScanOutput output = items({tree.path("no/git")});
    EXPECT_EQ(output.notes, QStringList{WorktreeFinder::gitMissingNote()});
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(RelativeDate::expand(output.items[0].detail, context.now), changed(output.items[0]) + "not checked for changes: git isn't installed");

    output = items({brokenGit()});
    EXPECT_TRUE(output.notes.isEmpty());
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(RelativeDate::expand(output.items[0].detail, context.now), changed(output.items[0]) + "not checked for changes");

    QDir(feature).removeRecursively();
    EXPECT_TRUE(items({tree.path("no/git")}).notes.isEmpty()) << "no worktree, no note";
}

TEST_F(WorktreeFinderTest, TheStatusQueryNeverRunsTheRepositorysFilterPrograms)
{
    const QString marker = tree.path("filter-ran");
    run(repository, {"config", "filter.spy.clean", "touch '" + marker + "'; cat"});
    run(repository, {"config", "filter.spy.smudge", "cat"});
    run(repository, {"config", "filter.spy.required", "true"});
    tree.file("home/code/app/.gitattributes", QByteArray("*.txt filter=spy\n"));
    tree.file("home/code/app/data.txt", QByteArray("aaaa\n"));
    ProjectScannerGit::commitAll(repository);
    const QString feature = addWorktree("home/code/feature");
    // Same size, other time: git can tell it apart only by cleaning and hashing it.
    tree.file("home/code/feature/data.txt", QByteArray("bbbb\n"));
    tree.setTimes("home/code/feature/data.txt", 1'600'000'000);
    QFile::remove(marker);

    const std::optional<QStringList> off = WorktreeFinder::filtersOff(feature, "/usr/bin/git");
    EXPECT_EQ(off, (QStringList{"-c", "filter.spy.clean=", "-c", "filter.spy.smudge=", "-c", "filter.spy.required=false"}));
    EXPECT_EQ(WorktreeFinder::uncommittedChanges(feature, "/usr/bin/git", off.value_or(QStringList())), 1);
    EXPECT_FALSE(QFile::exists(marker));

    EXPECT_EQ(WorktreeFinder::uncommittedChanges(feature, "/usr/bin/git", {}), 1);
    EXPECT_TRUE(QFile::exists(marker)) << "the same query with the filter on runs it, so the check above means something";
}
