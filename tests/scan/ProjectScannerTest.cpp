#include "format/RelativeDate.h"
#include "scan/ProjectScanner.h"
#include "scan/ProjectScannerGit.h"
#include "support/LockedFolders.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"

#include <QFile>
#include <QTimeZone>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(ProjectScannerRoots, ExpandsCleansSortsAndDropsNestedAndMissingFolders)
{
    TempTree tree;
    const QString home = tree.dir("home");
    for (const char* folder : {"home/code", "home/code/app", "home/code app", "home/codex", "other"})
        tree.dir(folder);
    tree.file("home/notes.txt");

    const QStringList roots = ProjectScanner::distinctRoots(
        {
            "~/code/app",
            tree.path("home//code/./lib/.."),
            tree.path("other/"),
            "~/codex",
            "~/code app",
            "~/code",
            "~/missing",
            "~/notes.txt",
            tree.path("other"),
        },
        home);
    EXPECT_EQ(roots, QStringList({home + "/code", home + "/code app", home + "/codex", tree.path("other")}));
    EXPECT_EQ(ProjectScanner::distinctRoots({"~/code", "~"}, home), QStringList({home})) << "\"~\" alone is home";
}

namespace {

constexpr qint64 jan2020 = 1'577'836'800;
constexpr qint64 day = 86'400;

// A fixture home folder scanned whole, with git found where the system keeps it.
class ProjectScannerScan : public ::testing::Test {
protected:
    ProjectScannerScan() : home(tree.dir("home"))
    {
        context.home = home;
        context.roots = {home};
    }

    ScanOutputs scan(const QStringList& gitCandidates = ToolLocations::gitCandidates()) const
    {
        return ProjectScanner(gitCandidates).scan(context);
    }

    QString changedFact(const CleanupItem& item) const
    {
        return item.date ? "project changed " + RelativeDate::format(*item.date, context.now) : QString();
    }

    // A git that writes each call's arguments to a log and then runs the real one.
    QString recordingGit() const
    {
        const QString path = tree.file("bin/git", "#!/bin/sh\necho \"$*\" >> '" + QFile::encodeName(tree.path("git.log"))
                                                      + "'\nexec /usr/bin/git \"$@\"\n");
        ::chmod(QFile::encodeName(path).constData(), 0755);
        return path;
    }

    QStringList gitCalls() const
    {
        QFile log(tree.path("git.log"));
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()).split('\n', Qt::SkipEmptyParts)
                                             : QStringList();
    }

    TempTree tree;
    QString home;
    ScanContext context;
};

}  // namespace

TEST_F(ProjectScannerScan, CommittedBuildFolderAsksAIAndAnUntrackedOneStaysSafe)
{
    tree.file("home/code/app/android/build.gradle");
    tree.file("home/code/app/android/build/a.txt", 10);
    tree.file("home/code/app/android/build/b.txt", 10);
    ProjectScannerGit::initRepository(tree.path("home/code/app"));
    tree.file("home/code/app/android/build/c.o", 5000);  // output beside the committed files
    tree.file("home/code/lib/build.gradle");
    tree.file("home/code/lib/build/out.o", 5000);
    context.roots = {home, "~/code"};  // nested scan folders are walked once

    const ScanOutput projects = scan()[CategoryID::projects];
    ASSERT_EQ(projects.items.size(), 2);

    const CleanupItem* app = findRow(projects.items, tree.path("home/code/app/android/build"));
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(app->title, "app/android");
    ASSERT_TRUE(app->date.has_value()) << "git and the working copy date the project";
    EXPECT_EQ(RelativeDate::expand(app->detail, context.now), changedFact(*app) + " · 2 files in it are tracked by git");
    EXPECT_EQ(app->safety(home), Safety::askAI);

    const CleanupItem* lib = findRow(projects.items, tree.path("home/code/lib/build"));
    ASSERT_NE(lib, nullptr);
    EXPECT_EQ(RelativeDate::expand(lib->detail, context.now), changedFact(*lib));
    EXPECT_EQ(lib->safety(home), Safety::safe);
}

TEST_F(ProjectScannerScan, OnlyABuildFolderEverRunsGit)
{
    tree.file("home/code/web/package.json");
    tree.file("home/code/web/node_modules/left-pad/index.js", 100);
    tree.file("home/code/web/.venv/pyvenv.cfg", 20);
    tree.file("home/code/droid/build.gradle");
    tree.file("home/code/droid/build/out.bin", 100);
    ProjectScannerGit::initRepository(tree.path("home/code"));  // everything is even committed

    const ScanOutput projects = scan({recordingGit()})[CategoryID::projects];
    EXPECT_EQ(projects.items.size(), 3);
    const QStringList calls = gitCalls();
    ASSERT_EQ(calls.size(), 1) << qPrintable(calls.join('\n'));
    EXPECT_TRUE(calls[0].endsWith("-C " + tree.path("home/code/droid") + " ls-files -z -- build")) << qPrintable(calls[0]);
    EXPECT_TRUE(calls[0].startsWith("-c core.fsmonitor=false -c core.hooksPath=/dev/null ")) << qPrintable(calls[0]);

    const CleanupItem* modules = findRow(projects.items, tree.path("home/code/web/node_modules"));
    ASSERT_NE(modules, nullptr);
    EXPECT_EQ(modules->safety(home), Safety::safe);
    EXPECT_FALSE(modules->detail.contains("tracked"));
}

TEST_F(ProjectScannerScan, FoldersWithoutFilesGiveNoRowAndUndatedProjectsNoChangeFact)
{
    tree.file("home/code/web/package.json");
    tree.dir("home/code/web/node_modules/.bin");
    tree.file("home/code/py/.venv/pyvenv.cfg", 20);
    tree.file("home/code/py/a/b/c/too-deep.py");  // below the third level: not looked at

    const ScanOutput projects = scan()[CategoryID::projects];
    ASSERT_EQ(projects.items.size(), 1);
    const CleanupItem& venv = projects.items.first();
    EXPECT_EQ(venv.id, tree.path("home/code/py/.venv"));
    EXPECT_EQ(venv.date, std::nullopt);
    EXPECT_EQ(venv.detail, "");
}

TEST_F(ProjectScannerScan, LargeFilesSayWhenOpenedIfReadAfterWritingElseWhenChanged)
{
    const QString opened = tree.sparseFile("home/media/opened.mov", 200'000'000);
    const QString written = tree.sparseFile("home/media/written.mov", 200'000'001);
    tree.setTimes("home/media/written.mov", jan2020);
    const struct timespec times[2] = {{jan2020 + 30 * day, 0}, {jan2020, 0}};  // read a month after writing
    ::utimensat(AT_FDCWD, QFile::encodeName(opened).constData(), times, 0);

    const ScanOutput large = scan()[CategoryID::largeFiles];
    ASSERT_EQ(large.items.size(), 2);
    const CleanupItem* openedRow = findRow(large.items, opened);
    ASSERT_NE(openedRow, nullptr);
    EXPECT_EQ(openedRow->date, QDateTime::fromSecsSinceEpoch(jan2020 + 30 * day, QTimeZone::utc()));
    EXPECT_EQ(RelativeDate::expand(openedRow->detail, context.now), "opened " + RelativeDate::format(*openedRow->date, context.now));
    EXPECT_EQ(openedRow->safety(home), Safety::risky);
    const FileTarget target = openedRow->removal.as<Removal::Trash>()->targets.value(0);
    ASSERT_TRUE(target.content.has_value());
    EXPECT_EQ(target.content->size, 200'000'000);
    EXPECT_EQ(target.content->modified, jan2020 * 1'000'000'000);

    const CleanupItem* writtenRow = findRow(large.items, written);
    ASSERT_NE(writtenRow, nullptr);
    EXPECT_EQ(writtenRow->date, QDateTime::fromSecsSinceEpoch(jan2020, QTimeZone::utc()));
    EXPECT_EQ(RelativeDate::expand(writtenRow->detail, context.now), "changed " + RelativeDate::format(*writtenRow->date, context.now));
}

TEST_F(ProjectScannerScan, UnreadableFoldersAreNotedOnProjectsAndLargeFiles)
{
    tree.file("home/open/x");
    tree.file("home/locked/y");
    tree.file("home/shut/z");
    const auto notes = withFoldersLocked(tree, {tree.path("home/locked"), tree.path("home/shut")}, [&] {
        const ScanOutputs outputs = scan();
        return (outputs.at(CategoryID::projects).notes + outputs.at(CategoryID::largeFiles).notes
                + outputs.at(CategoryID::duplicates).notes + outputs.at(CategoryID::worktrees).notes)
            .join('|')
            .toUtf8();
    });
    if (!notes)
        GTEST_SKIP() << cannotLockFolders;
    // Linux has no privacy prompt to point to: the note names the folders' permissions.
    const QByteArray note = "2 folders couldn't be read: their permissions don't let you open them.";
    EXPECT_EQ(*notes, note + '|' + note);
}
