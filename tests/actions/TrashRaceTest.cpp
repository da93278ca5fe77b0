#include "actions/FreedesktopTrash.h"
#include "actions/Remover.h"
#include "actions/TrashFixture.h"
#include "support/LinkSwapper.h"
#include "support/TreeSnapshot.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

// Races an attacker against real removals: while the remover checks and moves, or Empty Trash
// deletes, another thread keeps swapping an object for a symbolic link that leads out of the
// home folder or into the person's own folders. Whatever the interleaving, nothing there may
// move or change, the scanned object must end up either where it was or in the Trash with its
// original location, and nothing may land in the working folder. The normal suite runs a few hundred rounds per shape; DUSTLARK_STRESS_RACES
// sets another count (docs/reliability.md).

namespace {

int rounds()
{
    const int wanted = qEnvironmentVariableIntValue("DUSTLARK_STRESS_RACES");
    return wanted > 0 ? wanted : 200;
}

QByteArray bytes(const QString& path)
{
    return QFile::encodeName(path);
}

class TrashRace : public TrashFixture {
protected:
    void SetUp() override
    {
        TrashFixture::SetUp();
        workingFolderBefore = trashLikeEntries();
    }

    // What a trash falling back to the working folder leaves there. Only these names: other
    // test programs may share the working folder.
    static QStringList trashLikeEntries()
    {
        const QString ownTrash = QStringLiteral(".Trash-") + QString::number(::getuid());
        return QDir::current().entryList({ownTrash, QStringLiteral(".Trash"), QStringLiteral("files"), QStringLiteral("info")},
                                         QDir::AllEntries | QDir::Hidden | QDir::System);
    }

    // Where the object with `inode` is now: at one of `places`, or in the Trash (whose info file
    // must then name `original`). Empty when it is nowhere: lost.
    QString whereIs(quint64 inode, const QStringList& places, const QString& original) const
    {
        for (const QString& place : places) {
            if (const auto info = FileStatus::of(place); info && info->st_ino == inode)
                return place;
        }
        for (const QString& name : trashedNames()) {
            const auto info = FileStatus::of(trashFolder() + QStringLiteral("/files/") + name);
            if (!info || info->st_ino != inode)
                continue;
            QFile record(trashFolder() + QStringLiteral("/info/") + name + QStringLiteral(".trashinfo"));
            const bool named = record.open(QIODevice::ReadOnly) && record.readAll().contains("Path=" + bytes(original).toPercentEncoding("/") + '\n');
            return named ? QStringLiteral("trash") : QStringLiteral("trash without its location");
        }
        return {};
    }

    void emptyTrash() const { ASSERT_EQ(FreedesktopTrash::empty(), std::nullopt); }

    void expectWorkingFolderUntouched() const { EXPECT_EQ(trashLikeEntries(), workingFolderBefore); }
    void raceFile(const QString& relative, const QString& swapped, const QString& elsewhere, const QString& victim);
    void raceEmptying(const QString& swapped);
    void fillTrash() const;

    QStringList workingFolderBefore;
};

// Rounds of: a fresh file at `relative` in the home, removed while `swapped` (the file or its
// folder) keeps turning into a link to `elsewhere`, whose file `victim` must stay as it is.
void TrashRace::raceFile(const QString& relative, const QString& swapped, const QString& elsewhere, const QString& victim)
{
    const QString path = home.path(relative);
    for (int round = 0; round < rounds(); ++round) {
        home.file(relative, QByteArray("scanned"));
        const CleanupItem item = trashItem({path});
        RemovalOutcome outcome;
        {
            const LinkSwapper swapper(swapped, elsewhere, {}, true);
            outcome = Remover::remove(item, environment);
        }
        const QString place = whereIs(item.removal.as<Removal::Trash>()->targets[0].inode, {path}, path);
        ASSERT_TRUE(place == path || place == QStringLiteral("trash")) << "round " << round << ": " << qPrintable(place);
        ASSERT_EQ(outcome == RemovalOutcome::movedToTrash(), place == QStringLiteral("trash")) << "round " << round;
        const auto outside = FileStatus::of(victim);
        ASSERT_TRUE(outside && S_ISREG(outside->st_mode) && outside->st_size == 9) << "round " << round << ": it moved";
        QFile::remove(path);
        emptyTrash();
    }
    expectWorkingFolderUntouched();
}

TEST_F(TrashRace, TargetSwappedForALinkDuringTheMove)
{
    TempTree outside;
    const QString victim = outside.file(QStringLiteral("secret.txt"), QByteArray("not yours"));
    raceFile(QStringLiteral("Downloads/old.zip"), home.path(QStringLiteral("Downloads/old.zip")), victim, victim);
}

TEST_F(TrashRace, ParentFolderSwappedForALinkDuringTheMove)
{
    TempTree outside;
    const QString victim = outside.file(QStringLiteral("project/notes.txt"), QByteArray("not yours"));
    raceFile(QStringLiteral("project/notes.txt"), home.path(QStringLiteral("project")), outside.path(QStringLiteral("project")), victim);
}

// Go's module cache is made writable before it moves; a folder inside it swapped for a link
// must not lead that permission change to read-only files outside the home.
TEST_F(TrashRace, GoCacheFolderSwappedDuringThePermissionFix)
{
    TempTree outside;
    const QString victim = outside.file(QStringLiteral("pkg/go.mod"), 20);
    ASSERT_EQ(::chmod(bytes(victim).constData(), 0444), 0);
    ASSERT_EQ(::chmod(bytes(outside.path(QStringLiteral("pkg"))).constData(), 0555), 0);
    const QString module = home.path(QStringLiteral("go/pkg/mod/example.com/lib@v1.0.0"));
    const QString inner = module + QStringLiteral("/pkg");
    for (int round = 0; round < rounds(); ++round) {
        home.file(QStringLiteral("go/pkg/mod/example.com/lib@v1.0.0/pkg/go.mod"), 20);
        ASSERT_EQ(::chmod(bytes(inner + QStringLiteral("/go.mod")).constData(), 0444), 0);
        ASSERT_EQ(::chmod(bytes(inner).constData(), 0555), 0);
        ASSERT_EQ(::chmod(bytes(module).constData(), 0555), 0);
        const CleanupItem item = trashItem({module});
        const quint64 inode = item.removal.as<Removal::Trash>()->targets[0].inode;
        {
            const LinkSwapper swapper(inner, outside.path(QStringLiteral("pkg")), {}, true);
            (void)Remover::remove(item, environment);
        }
        const QString place = whereIs(inode, {module}, module);
        ASSERT_TRUE(place == module || place == QStringLiteral("trash")) << "round " << round << ": " << qPrintable(place);
        ASSERT_EQ(FileStatus::of(victim)->st_mode & 07777, 0444u) << "round " << round;
        ASSERT_EQ(FileStatus::of(outside.path(QStringLiteral("pkg")))->st_mode & 07777, 0555u) << "round " << round;
        if (place == module) {
            ::chmod(bytes(module).constData(), 0755);
            ::chmod(bytes(inner).constData(), 0755);
            QDir(module).removeRecursively();
        }
        emptyTrash();
    }
    ::chmod(bytes(outside.path(QStringLiteral("pkg"))).constData(), 0755);
    expectWorkingFolderUntouched();
}

// A trashed folder with a folder inside, as file managers leave it, with its info file.
void TrashRace::fillTrash() const
{
    const QString files = trashFolder() + QStringLiteral("/files/");
    for (int i = 0; i < 8; ++i) {
        for (const QString& name : {QStringLiteral("entry/a%1"), QStringLiteral("entry/sub/b%1")}) {
            QDir().mkpath(QFileInfo(files + name.arg(i)).path());
            QFile file(files + name.arg(i));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("trashed") == 7);
        }
    }
    QDir().mkpath(trashFolder() + QStringLiteral("/info"));
    QFile info(trashFolder() + QStringLiteral("/info/entry.trashinfo"));
    ASSERT_TRUE(info.open(QIODevice::WriteOnly) && info.write("[Trash Info]\nPath=/tmp/entry\n") > 0);
}

// Rounds of Empty Trash while `swapped` (below the Trash folder) keeps turning into a link to
// the person's Documents, of which nothing may be lost or changed, not even a mode. After each
// round the Trash must empty completely.
void TrashRace::raceEmptying(const QString& swapped)
{
    const QString documents = home.dir(QStringLiteral("Documents"));
    for (int i = 0; i < 20; ++i) {
        home.file(QStringLiteral("Documents/report-%1.txt").arg(i), 9);
        home.file(QStringLiteral("Documents/sub/b%1").arg(i), 9);  // names the trashed ones have too
    }
    home.file(QStringLiteral("Documents/entry.trashinfo"), 9);
    ::chmod(bytes(home.path(QStringLiteral("Documents/sub/b0"))).constData(), 0444);
    ::chmod(bytes(home.path(QStringLiteral("Documents/sub"))).constData(), 0555);
    const QMap<QString, QString> before = treeSnapshot(documents);
    for (int round = 0; round < rounds(); ++round) {
        fillTrash();
        {
            const LinkSwapper swapper(trashFolder() + QLatin1Char('/') + swapped, documents, {}, true);
            (void)FreedesktopTrash::empty();
        }
        ASSERT_TRUE(treeSnapshot(documents) == before) << "round " << round;
        emptyTrash();
        ASSERT_TRUE(trashedNames().isEmpty()) << "round " << round;
    }
    ::chmod(bytes(home.path(QStringLiteral("Documents/sub"))).constData(), 0755);
    expectWorkingFolderUntouched();
}

TEST_F(TrashRace, TrashFilesFolderSwappedForALinkDuringEmptying)
{
    raceEmptying(QStringLiteral("files"));
}

TEST_F(TrashRace, TrashedEntrySwappedForALinkDuringEmptying)
{
    raceEmptying(QStringLiteral("files/entry"));
}

TEST_F(TrashRace, FolderInsideATrashedEntrySwappedForALinkDuringEmptying)
{
    raceEmptying(QStringLiteral("files/entry/sub"));
}

}  // namespace
