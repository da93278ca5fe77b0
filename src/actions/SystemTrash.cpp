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

// NSFileWriteNoPermissionError: the Cocoa error of a move refused for lack of permission.
constexpr int cocoaWriteNoPermission = 513;

bool sameObject(int a, int b)
{
    struct stat first {};
    struct stat second {};
    return ::fstat(a, &first) == 0 && ::fstat(b, &second) == 0 && first.st_dev == second.st_dev
        && first.st_ino == second.st_ino;
}

QByteArray folderOf(const QString& path)
{
    return QFile::encodeName(QFileInfo(path).path());
}

const TrashResult anotherObject{std::nullopt, QString(), false, true};

}  // namespace

FileManagerAnswer FileManagerCalls::trashThroughQt(const QString& path)
{
    QFile file(path);
    if (!file.moveToTrash())
        return {std::nullopt, file.errorString()};
    return {file.fileName(), QString()};  // Qt renames the QFile to its place in the Trash
}

int FileManagerCalls::openFolderFollowingLinks(const QByteArray& path)
{
    return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// QFile keeps only the text of a failed move. On macOS Qt builds it from the NSError's code as
// if that were an errno (qt_error_string), so Cocoa's 513 arrives as strerror(513). Comparing
// with the same function's texts reads the code back. EACCES and EPERM also come from the
// App Management protection of apps and from root-owned bundles in a folder the person may
// write: the permission that matters is the object's, not its folder's, so only the move can tell.
bool refusedForPermission(const QString& error)
{
    for (const int code : {EACCES, EPERM, cocoaWriteNoPermission}) {
        if (error == qt_error_string(code))
            return true;
    }
    return false;
}

// The file manager's trash takes only a path, so the system itself resolves the path once more
// inside the call. What can be narrowed is narrowed:
//  - right before the call, the folder the path names now (links followed, as the file manager
//    will follow them) must be the folder checked through descriptors, and must still hold the
//    requested object;
//  - right after it, the object at the place the call returned must be the requested one. That
//    place is only looked at, never opened or listed: ~/.Trash refuses to be opened by an app
//    without Full Disk Access, while a status call of a path inside it is answered;
//  - a different object is renamed back into the folder descriptor held from before the call,
//    never over anything, when that folder is still what the path names: the object can only
//    have come from there. Otherwise it stays in the Trash.
// What remains is the time between `resolved` being opened and the system's own lookup inside
// the call: microseconds, and no smaller window exists while the trash call takes a path.
TrashResult moveThroughFileManager(const TrashRequest& request, const FileManagerCalls& calls)
{
    const Descriptor resolved(calls.openFolder(folderOf(request.path)));
    if (!resolved.isValid() || !sameObject(resolved.get(), request.folder) || !request.object.isObjectAt(request.folder, request.name.constData()))
        return anotherObject;
    const FileManagerAnswer answer = calls.trash(request.path);
    if (!answer.landed)
        return {std::nullopt, answer.error, refusedForPermission(answer.error), false};
    const QByteArray landed = QFile::encodeName(*answer.landed);
    if (request.object.isObjectAt(AT_FDCWD, landed.constData()))
        return {answer.landed, QString(), false, false};
    const Descriptor nowResolved(calls.openFolder(folderOf(request.path)));
    if (nowResolved.isValid() && sameObject(nowResolved.get(), resolved.get()))
        Platform::renameNoReplaceAt(AT_FDCWD, landed.constData(), resolved.get(), request.name.constData());
    return anotherObject;
}

TrashResult move(const TrashRequest& request)
{
    if (Platform::desktop() == Platform::Desktop::freedesktop)
        return FreedesktopTrash::moveAt(request);
    return moveThroughFileManager(request);
}

}  // namespace SystemTrash
