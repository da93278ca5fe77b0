#include "machinery/Fingerprint.h"
#include "actions/Remover.h"
#include "actions/TargetCheck.h"
#include "actions/TrashFixture.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/RemovalReasons.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QProcess>

#include <sys/stat.h>

namespace {

const qint64 twoDaysAgo = QDateTime::currentSecsSinceEpoch() - 2 * 86'400;

class RemoverChecks : public TrashFixture {};

TEST_F(RemoverChecks, OnlyTheHomeFolderApplicationBundlesAndOtherDiskScanFoldersAreAllowed)
{
    environment.home = QStringLiteral("/Users/me");
    environment.otherVolumeFolders.clear();
    const struct {
        const char* path;
        bool allowed;
    } rows[] = {
        {"/Users/me/Library/Caches/x", true},
        {"/Users/me", false},
        {"/Users/meta/file", false},
        {"/Users/me/../other/file", false},
        {"/Users/me//file", false},
        {"Users/me/file", false},
        {"/Applications/Tool.app", true},
        {"/Applications/Tools/Tool.app", false},
        {"/Applications/.app", false},
        {"/Applications/Tool.app/Contents", false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(TargetCheck::isInAllowedPlace(QString::fromUtf8(row.path), environment), row.allowed) << row.path;
}

// Which scan folder counts as another disk is AllowedPlace's rule (by device on Linux); the
// remover allows what lies inside such a folder, not the folder itself.
TEST_F(RemoverChecks, InsideAScanFolderOnAnotherDiskIsAllowed)
{
    const QTemporaryDir otherDisk(QStringLiteral("/dev/shm/dustlark-XXXXXX"));
    ASSERT_TRUE(otherDisk.isValid());
    environment.otherVolumeFolders = {otherDisk.path() + QStringLiteral("/")};
    EXPECT_TRUE(TargetCheck::isInAllowedPlace(otherDisk.path() + QStringLiteral("/build"), environment));
    EXPECT_FALSE(TargetCheck::isInAllowedPlace(otherDisk.path(), environment));
}

TEST_F(RemoverChecks, RefusesASymbolicLink)
{
    home.file(QStringLiteral("real.txt"), 10);
    expectRefused(trashItem({home.symlink(QStringLiteral("link.txt"), home.path(QStringLiteral("real.txt")))}),
                  RemovalReasons::symbolicLink());
}

// ext4 hands a freed inode straight back, so a deleted and recreated file or folder can carry
// the scanned device and inode; its birth time gives it away.
TEST_F(RemoverChecks, RefusesAnObjectDeletedAndMadeAgainWithTheSameInode)
{
    for (const bool folder : {false, true}) {
        const QString path = home.path(QStringLiteral("again"));
        const auto make = [&] { folder ? home.dir(QStringLiteral("again")) : home.file(QStringLiteral("again"), 10); };
        const auto remove = [&] { folder ? QDir().rmdir(path) : QFile::remove(path); };
        std::optional<FileTarget> scanned;
        bool reused = false;
        for (int attempt = 0; attempt < 50 && !reused; ++attempt) {
            make();
            scanned = FileTarget::make(path);
            remove();
            make();
            reused = FileStatus::of(path)->st_ino == scanned->inode;
            if (!reused)
                remove();
        }
        if (!reused || !scanned->birth)
            GTEST_SKIP() << "this file system hands out no inode twice or keeps no birth times";
        CleanupItem item = trashItem({path});
        std::get<Removal::Trash>(item.removal.value).targets[0] = *scanned;
        expectRefused(item, RemovalReasons::changedSinceScan());
        remove();
    }
}

TEST_F(RemoverChecks, RefusesAFileWhoseContentChangedButNotItsSize)
{
    const QString path = home.file(QStringLiteral("data.db"), 100, 'a');
    home.setTimes(QStringLiteral("data.db"), twoDaysAgo);
    CleanupItem item = trashItem({path});
    FileTarget& guarded = std::get<Removal::Trash>(item.removal.value).targets[0];
    struct stat info {};
    ::lstat(QFile::encodeName(path).constData(), &info);
    guarded.content = FileTarget::ContentStamp::of(info);
    ASSERT_EQ(TargetCheck::problem(guarded, environment), std::nullopt);

    home.file(QStringLiteral("data.db"), 100, 'b');  // same inode, same size
    home.setTimes(QStringLiteral("data.db"), twoDaysAgo);  // and the modification time put back
    expectRefused(item, RemovalReasons::changedSinceScan());
}

TEST_F(RemoverChecks, RefusesAFolderWhoseTreeGainedAFile)
{
    const QString folder = home.dir(QStringLiteral("Sessions"));
    home.file(QStringLiteral("Sessions/one.jsonl"), 10);
    CleanupItem item = trashItem({folder});
    std::get<Removal::Trash>(item.removal.value).targets[0].tree = Fingerprint::compute(folder);

    home.file(QStringLiteral("Sessions/two.jsonl"), 0);
    expectRefused(item, RemovalReasons::changedSinceScan());
}

TEST_F(RemoverChecks, RefusesAPathWhoseParentFolderWasSwappedForALink)
{
    const QString path = home.file(QStringLiteral("projects/app/node_modules/x.js"), 10);
    const CleanupItem item = trashItem({path});
    const QString parent = home.path(QStringLiteral("projects/app"));
    ASSERT_TRUE(QDir().rename(parent, home.path(QStringLiteral("projects/moved"))));
    home.symlink(QStringLiteral("projects/app"), home.path(QStringLiteral("projects/moved")));
    // The path still leads to the very same file, only through the link now.
    expectRefused(item, RemovalReasons::pathThroughSymbolicLink());
}

TEST_F(RemoverChecks, RefusesAWorktreeWhoseLockFileAppeared)
{
    const QString worktree = home.dir(QStringLiteral("wt/feature"));
    CleanupItem item = trashItem({worktree});
    const QString lock = home.path(QStringLiteral("repo/.git/worktrees/feature/locked"));
    std::get<Removal::Trash>(item.removal.value).targets[0].gitLockFile = lock;
    ASSERT_EQ(TargetCheck::problem(item.removal.as<Removal::Trash>()->targets[0], environment), std::nullopt);

    home.file(QStringLiteral("repo/.git/worktrees/feature/locked"), QByteArray("agent at work\n"));
    expectRefused(item, RemovalReasons::gitLocked());
}

TEST_F(RemoverChecks, RefusesWhileAWatchedProgramRuns)
{
    const QString program = home.path(QStringLiteral("bin/AgentHost"));
    home.dir(QStringLiteral("bin"));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/sleep"), program));
    const QString data = home.file(QStringLiteral("Library/AgentHost/state.json"), 10);
    const FileTarget watched = *FileTarget::watching(data, {QStringLiteral("AgentHost")});
    ASSERT_EQ(TargetCheck::problem(watched, environment), std::nullopt);

    QProcess running;
    running.start(program, {QStringLiteral("30")});
    ASSERT_TRUE(running.waitForStarted());
    CleanupItem item = trashItem({data});
    item.removal = Removal::trash({watched});
    expectRefused(item, RemovalReasons::running());
    running.kill();
    running.waitForFinished();
}

TEST_F(RemoverChecks, MatchesProgramsByExecutableOrBundleName)
{
    const QStringList running{QStringLiteral("/Applications/Visual Studio Code.app/Contents/MacOS/Electron"),
                              QStringLiteral("/usr/local/bin/ollama")};
    EXPECT_TRUE(TargetCheck::usedByRunningApp({QStringLiteral("Ollama")}, running));
    EXPECT_TRUE(TargetCheck::usedByRunningApp({QStringLiteral("Visual Studio Code")}, running));
    EXPECT_FALSE(TargetCheck::usedByRunningApp({QStringLiteral("Code")}, running));
    EXPECT_FALSE(TargetCheck::usedByRunningApp({QStringLiteral("llama")}, running));
}

TEST_F(RemoverChecks, QuietForADayRefusesARecentChangeInsideTheTargetOrItsProject)
{
    home.file(QStringLiteral("agent/sessions/old.jsonl"), 10);
    for (const char* entry : {"agent/sessions/old.jsonl", "agent/sessions", "agent"})
        home.setTimes(QLatin1String(entry), twoDaysAgo);
    const QString project = home.path(QStringLiteral("agent"));
    CleanupItem item = trashItem({home.path(QStringLiteral("agent/sessions"))});
    item.projectPath = project;
    FileTarget& guarded = std::get<Removal::Trash>(item.removal.value).targets[0];
    guarded.quietForADay = true;
    guarded.projectQuietForADay = true;
    ASSERT_EQ(TargetCheck::problem(guarded, environment, project), std::nullopt);
    EXPECT_EQ(TargetCheck::problem(guarded, environment), RemovalReasons::changedInLastDay())
        << "a project guard without a project folder must refuse";

    home.file(QStringLiteral("agent/fresh.txt"), 1);  // beside the target, inside its project
    expectRefused(item, RemovalReasons::changedInLastDay());

    guarded.projectQuietForADay = false;
    ASSERT_EQ(TargetCheck::problem(guarded, environment), std::nullopt);
    home.file(QStringLiteral("agent/sessions/today.jsonl"), 1);
    expectRefused(item, RemovalReasons::changedInLastDay());
}

TEST_F(RemoverChecks, ChecksRunInOrderSoTheFirstFaultNamesTheReason)
{
    // Outside the home folder and a link at once: the place is judged first.
    TempTree elsewhere;
    elsewhere.file(QStringLiteral("real"), 1);
    expectRefused(trashItem({elsewhere.symlink(QStringLiteral("link"), elsewhere.path(QStringLiteral("real")))}),
                  RemovalReasons::outsideHome());
    // Replaced and locked at once: identity comes before the lock.
    const QString path = home.file(QStringLiteral("wt/a"), 1);
    CleanupItem item = trashItem({path});
    std::get<Removal::Trash>(item.removal.value).targets[0].gitLockFile = home.file(QStringLiteral("locked"), 1);
    home.file(QStringLiteral("wt/b"), 1);
    ::rename(QFile::encodeName(home.path(QStringLiteral("wt/b"))).constData(), QFile::encodeName(path).constData());
    expectRefused(item, RemovalReasons::changedSinceScan());
}

}  // namespace
