#include "vocabulary/FileTarget.h"

#include "vocabulary/FileStatus.h"

#include <QFile>

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
    return target;
}

std::optional<FileTarget> FileTarget::watching(const QString& path, const QStringList& programs)
{
    auto target = make(path);
    if (target)
        target->usedWhileRunning = programs;
    return target;
}
