#include "actions/FreedesktopTrash.h"

#include "actions/TrashFolder.h"
#include "actions/TreeRemoval.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace FreedesktopTrash {

namespace {

const QByteArray infoSuffix = ".trashinfo";

// Made owner-only when missing; one that exists keeps its mode (a link there must not lead a
// permission change elsewhere).
bool makeOwnerOnlyFolder(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    return ::mkdir(name.constData(), 0700) == 0 || errno == EEXIST;
}

QList<QByteArray> entriesOf(int folder)
{
    std::string names;
    if (folder >= 0)
        Platform::readFolderNames(folder, names);
    return QByteArray::fromStdString(names).split('\0');
}

// Removes each trashed object through the held "files" folder; its info file goes only with
// it, so whatever stays can still be put back by a file manager.
struct Removed {
    bool all = true;
    bool stopped = false;
};

Removed removeObjects(const TrashFolder& trash, const EmptyProgress& progress, const CancellationToken* stop)
{
    QList<QByteArray> names = entriesOf(trash.files.get());
    names.removeAll(QByteArray());
    const int total = int(names.size());
    Removed removed;
    int done = 0;
    if (progress)
        progress(done, total);
    for (const QByteArray& name : names) {
        if (stop && stop->isCancelled()) {
            removed.stopped = true;
            removed.all = false;
            break;
        }
        if (TreeRemoval::removeAt(trash.files.get(), name))
            ::unlinkat(trash.info.get(), (name + infoSuffix).constData(), 0);
        else
            removed.all = false;
        if (progress)
            progress(++done, total);
    }
    return removed;
}

bool isInFiles(const TrashFolder& trash, const QByteArray& name)
{
    struct stat info {};
    return ::fstatat(trash.files.get(), name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0;
}

// Without a "files" folder (moved away for a moment, say) no info file can be told an orphan.
void removeOrphanedInfo(const TrashFolder& trash)
{
    if (!trash.files.isValid())
        return;
    for (const QByteArray& name : entriesOf(trash.info.get())) {
        const QByteArray object = name.endsWith(infoSuffix) ? name.chopped(infoSuffix.size()) : name;
        if (!name.isEmpty() && !isInFiles(trash, object))
            ::unlinkat(trash.info.get(), name.constData(), 0);
    }
}

}  // namespace

QString homeTrash()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash");
}

bool prepareHomeTrash()
{
    const QString trash = homeTrash();
    if (!QDir::isAbsolutePath(trash) || !QDir().mkpath(QDir::cleanPath(trash + QStringLiteral("/.."))))
        return false;
    return makeOwnerOnlyFolder(trash) && makeOwnerOnlyFolder(trash + QStringLiteral("/files"))
        && makeOwnerOnlyFolder(trash + QStringLiteral("/info"));
}

QString stoppedSentence()
{
    //: Empty Trash status after the person pressed Stop
    return QCoreApplication::translate("SystemAccess", "Emptying the Trash was stopped. What was already removed is gone.");
}

std::optional<QString> empty(const EmptyProgress& progress, const CancellationToken* stop)
{
    const ExistingTrash existing = TrashFolder::existingHome();
    if (existing.refusal)
        return existing.refusal;
    if (!existing.trash)
        return std::nullopt;  // no Trash, nothing in it
    const TrashFolder& trash = *existing.trash;
    const Removed removed = removeObjects(trash, progress, stop);
    removeOrphanedInfo(trash);
    if (removed.stopped)
        return stoppedSentence();
    (void)TreeRemoval::removeAt(trash.folder.get(), "expunged");
    ::unlinkat(trash.folder.get(), "directorysizes", 0);
    if (removed.all)
        return std::nullopt;
    //: Empty Trash error on Linux, when some trashed items could not be deleted
    return QCoreApplication::translate("SystemAccess", "Some items in the Trash couldn't be removed. Empty the Trash again or use your file manager.");
}

}  // namespace FreedesktopTrash
