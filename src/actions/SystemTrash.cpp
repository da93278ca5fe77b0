#include "actions/SystemTrash.h"

#include "actions/FreedesktopTrash.h"
#include "machinery/Descriptor.h"
#include "platform/Platform.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace SystemTrash {

namespace {

bool sameObject(int a, int b)
{
    struct stat first {};
    struct stat second {};
    return ::fstat(a, &first) == 0 && ::fstat(b, &second) == 0 && first.st_dev == second.st_dev
        && first.st_ino == second.st_ino;
}

Descriptor openFolderByPath(const QString& path)
{
    return Descriptor(::open(QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

bool folderIsWritable(int folder)
{
    return ::faccessat(folder, ".", W_OK | X_OK, 0) == 0 || (errno != EACCES && errno != EPERM && errno != EROFS);
}

const TrashResult anotherObject{std::nullopt, QString(), false, true};

// The file manager's trash takes only a path, so the system itself resolves the path once more
// inside the call. What can be narrowed is narrowed:
//  - right before the call, the folder the path names now (links followed, as the file manager
//    will follow them) must be the folder checked through descriptors, and must still hold the
//    requested object;
//  - right after it, the object that landed in the Trash (the call returns its new place) must
//    be the requested one;
//  - a different object is moved back through the folder descriptor held from before the call,
//    never over anything, when that folder is still what the path names: the object can only
//    have come from there. Otherwise it stays in the Trash, whose "Put Back" knows its origin.
// What remains is the time between `resolved` being opened and the system's own lookup inside
// moveToTrash: microseconds, and no smaller window exists while the only trash call that keeps
// "Put Back" working takes a path.
TrashResult moveThroughFileManager(const TrashRequest& request)
{
    const Descriptor resolved = openFolderByPath(request.path);
    if (!resolved.isValid() || !sameObject(resolved.get(), request.folder)
        || !request.object.isObjectAt(request.folder, request.name.constData()))
        return anotherObject;
    QFile file(request.path);
    if (!file.moveToTrash())
        return {std::nullopt, file.errorString(), !folderIsWritable(request.folder), false};
    const QString landed = file.fileName();  // Qt renames the QFile to its place in the Trash
    const Descriptor trash = openFolderByPath(landed);
    const QByteArray landedName = QFile::encodeName(QFileInfo(landed).fileName());
    if (trash.isValid() && request.object.isObjectAt(trash.get(), landedName.constData()))
        return {landed, QString(), false, false};
    const Descriptor nowResolved = openFolderByPath(request.path);
    if (trash.isValid() && nowResolved.isValid() && sameObject(nowResolved.get(), resolved.get()))
        Platform::renameNoReplaceAt(trash.get(), landedName.constData(), resolved.get(), request.name.constData());
    return anotherObject;
}

}  // namespace

TrashResult move(const TrashRequest& request)
{
    if (Platform::desktop() == Platform::Desktop::freedesktop)
        return FreedesktopTrash::moveAt(request);
    return moveThroughFileManager(request);
}

}  // namespace SystemTrash
