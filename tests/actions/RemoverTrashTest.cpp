#include "machinery/Fingerprint.h"
#include "actions/FreedesktopTrash.h"
#include "actions/Remover.h"
#include "actions/SystemTrash.h"
#include "actions/TrashFixture.h"
#include "support/FileLook.h"
#include "vocabulary/RemovalReasons.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

class RemoverTrash : public TrashFixture {};

TEST_F(RemoverTrash, MovesAFileIntoTheFreedesktopTrashWithItsInfoFile)
{
    const QString path = home.file(QStringLiteral("Downloads/setup.dmg"), QByteArray("disk image"));
    EXPECT_EQ(Remover::remove(trashItem({path}), environment), RemovalOutcome::movedToTrash());

    EXPECT_FALSE(FileStatus::exists(path));
    EXPECT_EQ(trashedNames(), QStringList{QStringLiteral("setup.dmg")});
    EXPECT_EQ(contentOf(trashFolder() + QStringLiteral("/files/setup.dmg")), QByteArray("disk image"));
    const QList<QByteArray> info = contentOf(trashFolder() + QStringLiteral("/info/setup.dmg.trashinfo")).split('\n');
    ASSERT_EQ(info.size(), 4);
    EXPECT_EQ(info[0], "[Trash Info]");
    EXPECT_EQ(info[1], "Path=" + QFile::encodeName(path));
    const QDateTime deleted = QDateTime::fromString(QString::fromLatin1(info[2].mid(13)), Qt::ISODate);
    EXPECT_TRUE(info[2].startsWith("DeletionDate=") && deleted.isValid()) << info[2].constData();
    EXPECT_LT(std::abs(deleted.secsTo(QDateTime::currentDateTime())), 60);
}

TEST_F(RemoverTrash, MovesAGuardedFolderThatDidNotChange)
{
    const QString folder = home.dir(QStringLiteral("Library/Caches/tool"));
    home.file(QStringLiteral("Library/Caches/tool/a/b.cache"), 500);
    CleanupItem item = trashItem({folder});
    FileTarget& guarded = std::get<Removal::Trash>(item.removal.value).targets[0];
    guarded.tree = Fingerprint::compute(folder);
    guarded.gitLockFile = home.path(QStringLiteral("no-such-lock"));

    EXPECT_EQ(Remover::remove(item, environment), RemovalOutcome::movedToTrash());
    EXPECT_EQ(trashedNames(), QStringList{QStringLiteral("tool")});
    EXPECT_TRUE(FileStatus::exists(trashFolder() + QStringLiteral("/files/tool/a/b.cache")));
}

TEST_F(RemoverTrash, ChecksEveryTargetBeforeMovingAny)
{
    const QString first = home.file(QStringLiteral("app/Caches"), 10);
    const QString second = home.file(QStringLiteral("app/Logs"), 10);
    const CleanupItem item = trashItem({first, second});
    home.file(QStringLiteral("app/Logs.new"), 10);
    ASSERT_TRUE(QFile::remove(second));
    ASSERT_TRUE(QFile::rename(home.path(QStringLiteral("app/Logs.new")), second));

    expectRefused(item, RemovalReasons::changedSinceScan());
}

TEST_F(RemoverTrash, ATargetThatWentWithAnEarlierItemCountsAsDone)
{
    const QString shared = home.file(QStringLiteral("Library/Preferences/com.example.plist"), 10);
    const QString own = home.file(QStringLiteral("Library/Caches/com.example"), 10);
    const CleanupItem earlier = trashItem({shared});
    const CleanupItem later = trashItem({shared, own});

    ASSERT_EQ(Remover::remove(earlier, environment), RemovalOutcome::movedToTrash());
    // Another cleanup knows nothing of this one's: the target is simply gone.
    EXPECT_EQ(Remover::remove(later, RemovalEnvironment::system(home.root(), {})),
              RemovalOutcome::failed(RemovalReasons::noLongerExists()));
    EXPECT_EQ(Remover::remove(later, environment), RemovalOutcome::movedToTrash());
    EXPECT_FALSE(FileStatus::exists(own));
    EXPECT_EQ(trashedNames().size(), 2);
}

TEST_F(RemoverTrash, PutsBackAnObjectSwappedInDuringTheMove)
{
    const QString path = home.file(QStringLiteral("Library/Logs/app.log"), QByteArray("scanned"));
    const CleanupItem item = trashItem({path});
    // Between the last look and the move, someone puts another file in its place.
    environment.trash = [&](const TrashRequest& request) {
        QFile::rename(request.path, request.path + QStringLiteral(".scanned"));
        home.file(QStringLiteral("Library/Logs/app.log"), QByteArray("someone else's"));
        return SystemTrash::move(request);
    };

    EXPECT_EQ(Remover::remove(item, environment), RemovalOutcome::failed(RemovalReasons::changedSinceScan()));
    EXPECT_EQ(contentOf(path), QByteArray("someone else's"));
    EXPECT_EQ(contentOf(path + QStringLiteral(".scanned")), QByteArray("scanned"));
    EXPECT_TRUE(trashedNames().isEmpty());
    EXPECT_TRUE(QDir(trashFolder() + QStringLiteral("/info")).isEmpty());
}

TEST_F(RemoverTrash, ARefusedTrashMoveNeverDeletes)
{
    const QString path = home.file(QStringLiteral("Documents/old.zip"), 10);
    environment.trash = [](const TrashRequest&) { return TrashResult{std::nullopt, QStringLiteral("Operation not permitted")}; };

    EXPECT_EQ(Remover::remove(trashItem({path}), environment),
              RemovalOutcome::failed(RemovalReasons::trashFailed(QStringLiteral("Operation not permitted"))));
    EXPECT_TRUE(FileStatus::exists(path));
}

// Go keeps its module cache read-only; its folders are opened up so it can go, and its files
// keep their modes: one of them shares its data (and so its mode) with a read-only file of the
// person's outside the cache, which stays read-only through the move and the emptying.
TEST_F(RemoverTrash, MovesAndEmptiesAGoModuleCacheWithoutChangingAnyFilesMode)
{
    const QString module = home.dir(QStringLiteral("go/pkg/mod/example.com/lib@v1.2.0"));
    const QString file = home.file(QStringLiteral("go/pkg/mod/example.com/lib@v1.2.0/go.mod"), 20);
    const QString persons = home.hardlink(QStringLiteral("projects/lib/go.mod"), QStringLiteral("go/pkg/mod/example.com/lib@v1.2.0/go.mod"));
    ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), 0444), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(module).constData(), 0555), 0);

    EXPECT_EQ(Remover::remove(trashItem({module}), environment), RemovalOutcome::movedToTrash());
    EXPECT_EQ(modeOf(trashFolder() + QStringLiteral("/files/lib@v1.2.0")), 0755u);
    EXPECT_EQ(modeOf(persons), 0444u);

    EXPECT_EQ(FreedesktopTrash::empty(), std::nullopt);
    EXPECT_TRUE(trashedNames().isEmpty());
    EXPECT_EQ(modeOf(persons), 0444u);
    EXPECT_EQ(QFileInfo(persons).size(), 20);
}

TEST_F(RemoverTrash, LockedItemsAndTheTrashRowAreNotRemovedHere)
{
    CleanupItem locked = trashItem({home.file(QStringLiteral("agent/session.jsonl"), 10)});
    locked.lockedReason = QStringLiteral("Running. Quit Claude to remove it.");
    expectRefused(locked, QStringLiteral("Running. Quit Claude to remove it."));

    CleanupItem trashRow;
    trashRow.category = CategoryID::trash;
    trashRow.removal = Removal{Removal::EmptyTrash{}};
    EXPECT_EQ(Remover::remove(trashRow, environment),
              RemovalOutcome::failed(QStringLiteral("The Trash is emptied with Empty Trash.")));
}

// The trash is made where it is missing, and nothing ever lands in the working folder.
TEST_F(RemoverTrash, SetsUpAMissingTrashInsteadOfUsingTheWorkingFolder)
{
    const QByteArray saved = qgetenv("XDG_DATA_HOME");
    const QString data = home.path(QStringLiteral("fresh-profile/.local/share"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(data));
    const QString path = home.file(QStringLiteral("notes.txt"), 10);
    const RemovalOutcome outcome = Remover::remove(trashItem({path}), environment);
    qputenv("XDG_DATA_HOME", saved);

    EXPECT_EQ(outcome, RemovalOutcome::movedToTrash());
    EXPECT_TRUE(FileStatus::exists(data + QStringLiteral("/Trash/files/notes.txt")));
    EXPECT_TRUE(FileStatus::exists(data + QStringLiteral("/Trash/info/notes.txt.trashinfo")));
    EXPECT_FALSE(FileStatus::exists(QDir::currentPath() + QStringLiteral("/files/notes.txt")));
}

}  // namespace
