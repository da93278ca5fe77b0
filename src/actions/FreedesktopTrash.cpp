#include "actions/FreedesktopTrash.h"

#include "actions/TreeRemoval.h"
#include "vocabulary/FileStatus.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

namespace FreedesktopTrash {

namespace {

const QString infoSuffix = QStringLiteral(".trashinfo");

bool makeOwnerOnlyFolder(const QString& path)
{
    if (!QDir().mkpath(path))
        return false;
    return QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

bool lexists(const QString& path)
{
    return FileStatus::exists(path);
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// Removes each trashed object; its info file goes only with it, so whatever stays can still
// be put back by a file manager.
bool removeObjects(const QString& trash)
{
    bool allRemoved = true;
    for (const QString& name : entriesOf(trash + QStringLiteral("/files"))) {
        if (TreeRemoval::removeTree(trash + QStringLiteral("/files/") + name))
            QFile::remove(trash + QStringLiteral("/info/") + name + infoSuffix);
        else
            allRemoved = false;
    }
    return allRemoved;
}

void removeOrphanedInfo(const QString& trash)
{
    for (const QString& name : entriesOf(trash + QStringLiteral("/info"))) {
        const QString object = name.endsWith(infoSuffix) ? name.chopped(infoSuffix.size()) : name;
        if (!lexists(trash + QStringLiteral("/files/") + object))
            QFile::remove(trash + QStringLiteral("/info/") + name);
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
    if (!QDir::isAbsolutePath(trash))
        return false;
    return makeOwnerOnlyFolder(trash) && makeOwnerOnlyFolder(trash + QStringLiteral("/files"))
        && makeOwnerOnlyFolder(trash + QStringLiteral("/info"));
}

std::optional<QString> empty()
{
    const QString trash = homeTrash();
    const bool allRemoved = removeObjects(trash);
    removeOrphanedInfo(trash);
    TreeRemoval::removeTree(trash + QStringLiteral("/expunged"));
    QFile::remove(trash + QStringLiteral("/directorysizes"));
    if (allRemoved)
        return std::nullopt;
    //: Empty Trash error on Linux, when some trashed items could not be deleted
    return QCoreApplication::translate("SystemAccess", "Some items in the Trash couldn't be removed. Empty the Trash again or use your file manager.");
}

}  // namespace FreedesktopTrash
