#include "actions/FreedesktopTrash.h"

#include "actions/TrashFolder.h"
#include "actions/TrashInfo.h"
#include "platform/Platform.h"
#include "vocabulary/SystemError.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FreedesktopTrash {

namespace {

// A trash holding this many objects of one name is not worth searching further.
constexpr int attemptLimit = 1000;

QString trashNotAvailable()
{
    //: Why a file couldn't be moved to the Trash: the system's Trash folder is missing and can't be made
    return QCoreApplication::translate("SystemTrash", "The Trash folder can't be set up.");
}

TrashResult failure(int error)
{
    return {std::nullopt, SystemError::describe(error), error == EACCES || error == EPERM || error == EROFS, false};
}

// One try in one trash; `crossesVolumes` says the rename found the trash on another volume.
struct Attempt {
    TrashResult result;
    bool crossesVolumes = false;
};

bool writeAll(int fd, const QByteArray& data)
{
    qsizetype written = 0;
    while (written < data.size()) {
        const ssize_t count = ::write(fd, data.constData() + written, size_t(data.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

// Creates the info file `infoName` exclusively and writes it completely. 0, or the errno.
int writeInfo(int infoFolder, const QByteArray& infoName, const QByteArray& text)
{
    const int fd = ::openat(infoFolder, infoName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0)
        return errno;
    const bool written = writeAll(fd, text);
    int error = written ? 0 : (errno != 0 ? errno : ENOSPC);
    if (::close(fd) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlinkat(infoFolder, infoName.constData(), 0);
    return error;
}

// The object was replaced between the last check and the rename: return the one that came
// where it was, never over anything. If that fails it stays in the Trash with its info file,
// where a file manager can restore it.
TrashResult putBack(const TrashFolder& trash, const QByteArray& name, const QByteArray& infoName,
                    const TrashRequest& request)
{
    if (Platform::renameNoReplaceAt(trash.files.get(), name.constData(), request.folder, request.name.constData()) == 0)
        ::unlinkat(trash.info.get(), infoName.constData(), 0);
    return {std::nullopt, QString(), false, true};
}

QByteArray recordedPath(const TrashFolder& trash, const QString& originalPath)
{
    const QByteArray path = QFile::encodeName(originalPath);
    if (trash.topFolder.isEmpty())
        return path;
    // A volume's trash records the path relative to its top folder, so it survives another mount point.
    return trash.topFolder == "/" ? path.mid(1) : path.mid(trash.topFolder.size() + 1);
}

Attempt moveInto(const TrashFolder& trash, const TrashRequest& request)
{
    const QByteArray text = TrashInfo::contents(recordedPath(trash, request.path), QDateTime::currentDateTime());
    for (int attempt = 1; attempt <= attemptLimit; ++attempt) {
        const QByteArray name = TrashInfo::candidateName(request.name, attempt);
        const QByteArray infoName = name + TrashInfo::suffix;
        const int infoError = writeInfo(trash.info.get(), infoName, text);
        if (infoError == EEXIST)
            continue;
        if (infoError != 0)
            return {failure(infoError)};
        const int error = Platform::renameNoReplaceAt(request.folder, request.name.constData(), trash.files.get(), name.constData());
        if (error == 0 && !request.object.isObjectAt(trash.files.get(), name.constData()))
            return {putBack(trash, name, infoName, request)};
        if (error == 0)
            return {{trash.filesPath + QLatin1Char('/') + QFile::decodeName(name), QString(), false, false}};
        ::unlinkat(trash.info.get(), infoName.constData(), 0);
        if (error != EEXIST)
            return {failure(error), error == EXDEV};
    }
    return {failure(EEXIST)};
}

}  // namespace

TrashResult moveAt(const TrashRequest& request)
{
    struct stat object {};
    if (::fstatat(request.folder, request.name.constData(), &object, AT_SYMLINK_NOFOLLOW) != 0)
        return failure(errno);
    if (const std::optional<TrashFolder> home = TrashFolder::home(); home && home->device == object.st_dev) {
        const Attempt attempt = moveInto(*home, request);
        if (!attempt.crossesVolumes)
            return attempt.result;
    }
    const std::optional<TrashFolder> volume = TrashFolder::ofVolume(request.folder, request.path);
    if (!volume)
        return {std::nullopt, trashNotAvailable(), false, false};
    return moveInto(*volume, request).result;
}

}  // namespace FreedesktopTrash
