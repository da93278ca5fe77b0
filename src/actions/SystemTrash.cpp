#include "actions/SystemTrash.h"

#include "actions/FreedesktopTrash.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace SystemTrash {

namespace {

bool usesFreedesktopTrash()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

QString trashNotAvailable()
{
    //: Why a file couldn't be moved to the Trash: the system's Trash folder is missing and can't be made
    return QCoreApplication::translate("SystemTrash", "The Trash folder can't be set up.");
}

bool folderIsWritable(const QString& path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    return ::access(folder.constData(), W_OK | X_OK) == 0 || (errno != EACCES && errno != EPERM && errno != EROFS);
}

TrashResult failure(const QFile& file, const QString& path)
{
    return {std::nullopt, file.errorString(), !folderIsWritable(path)};
}

// Qt 6.4 reports success even when it had to fall back to the working folder; take such a
// move back rather than leave the object somewhere nobody looks.
TrashResult undoStrayMove(const QString& strayPath, const QString& originalPath)
{
    Platform::renameNoReplace(strayPath, originalPath);
    return {std::nullopt, trashNotAvailable(), false};
}

}  // namespace

TrashResult move(const QString& path)
{
    if (usesFreedesktopTrash() && !FreedesktopTrash::prepareHomeTrash())
        return {std::nullopt, trashNotAvailable(), false};
    QFile file(path);
    if (!file.moveToTrash())
        return failure(file, path);
    const QString pathInTrash = file.fileName();  // Qt renames the QFile to its place in the Trash
    if (!QFileInfo(pathInTrash).isAbsolute())
        return undoStrayMove(pathInTrash, path);
    if (usesFreedesktopTrash() && !FreedesktopTrash::isTrashLocation(pathInTrash, path))
        return undoStrayMove(pathInTrash, path);
    return {pathInTrash, QString(), false};
}

void discardRecord(const QString& pathInTrash)
{
    if (!usesFreedesktopTrash())
        return;
    const QString info = FreedesktopTrash::infoFile(pathInTrash);
    if (!info.isEmpty())
        QFile::remove(info);
}

}  // namespace SystemTrash
