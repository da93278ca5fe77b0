#include "vocabulary/FileTarget.h"

#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

std::optional<FileTarget> FileTarget::make(const QString& path)
{
    const auto info = FileStatus::of(path);
    if (!info)
        return std::nullopt;
    FileTarget target;
    target.path = path;
    target.device = static_cast<qint32>(info->st_dev);
    target.inode = static_cast<quint64>(info->st_ino);
    target.birth = Platform::birthNanosecondsAt(AT_FDCWD, QFile::encodeName(path).constData());
    return target;
}

bool FileTarget::isObject(int folder, const char* name, const struct stat& info) const
{
    if (qint32(info.st_dev) != device || quint64(info.st_ino) != inode)
        return false;
    return !birth || Platform::birthNanosecondsAt(folder, name) == birth;
}

bool FileTarget::isObjectAt(int folder, const char* name) const
{
    struct stat info {};
    return ::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) == 0 && isObject(folder, name, info);
}

FileTarget::ContentStamp FileTarget::ContentStamp::of(const struct stat& info)
{
    return {qint64(info.st_size), Platform::modificationNanoseconds(info), Platform::statusChangeNanoseconds(info)};
}

std::optional<FileTarget> FileTarget::watching(const QString& path, const QStringList& programs)
{
    auto target = make(path);
    if (target)
        target->usedWhileRunning = programs;
    return target;
}
