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
