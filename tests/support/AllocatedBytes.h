#pragma once

#include <QFile>
#include <QString>

#include <sys/stat.h>

// The bytes one entry itself takes on disk by lstat (a folder's list of names, not what it
// holds; a link, not its target); -1 when it can't be examined.
inline qint64 allocatedBytes(const QString& path)
{
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? qint64(info.st_blocks) * 512 : -1;
}
