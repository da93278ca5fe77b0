#pragma once

#include <QHashFunctions>
#include <QtGlobal>

#include <sys/stat.h>

// A file's identity on its volume; two entries with the same key are hard links of one file.
struct FileKey {
    qint32 device = 0;
    quint64 inode = 0;
    bool operator==(const FileKey&) const = default;

    static FileKey of(const struct stat& status)
    {
        return {static_cast<qint32>(status.st_dev), static_cast<quint64>(status.st_ino)};
    }
};

inline size_t qHash(const FileKey& key, size_t seed = 0) noexcept
{
    return qHashMulti(seed, key.device, key.inode);
}
