#pragma once

#include "machinery/ScanContext.h"

#include <QString>

#include <cstdint>

class ScanProgress;

// A file's identity on its volume; two entries with the same key are hard links of one file.
struct FileKey {
    qint32 device = 0;
    quint64 inode = 0;
    bool operator==(const FileKey&) const = default;
};

inline size_t qHash(const FileKey& key, size_t seed = 0) noexcept
{
    return qHashMulti(seed, key.device, key.inode);
}

// Measures a file or folder tree: bytes allocated on disk (blocks x 512), hard links once per
// measurement, symbolic links never followed, no other volume entered. Thread-safe; every
// call is independent.
namespace FileSizer {

struct Measurement {
    qint64 bytes = 0;
    qint64 logicalBytes = 0;
    qint64 files = 0;
    qint64 unreadable = 0;
    bool complete = true;     // false when the top could not be read or the walk was stopped
    qint64 latestChange = 0;  // seconds since 1970; 0 when nothing was counted
};

// `progress` may be null; `cancellation` may be null (then the walk cannot be stopped).
Measurement measure(const QString& path, ScanProgress* progress = nullptr,
                    const CancellationToken* cancellation = nullptr);

}  // namespace FileSizer
