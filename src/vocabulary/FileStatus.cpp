#include "vocabulary/FileStatus.h"

#include <QFile>

namespace FileStatus {

std::optional<struct stat> of(const QString& path)
{
    struct stat info {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return info;
}

bool exists(const QString& path)
{
    return of(path).has_value();
}

bool isFolder(const QString& path)
{
    const auto info = of(path);
    return info && S_ISDIR(info->st_mode);
}

bool isRegularFile(const QString& path)
{
    const auto info = of(path);
    return info && S_ISREG(info->st_mode);
}

}  // namespace FileStatus
