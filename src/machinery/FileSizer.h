#pragma once

#include "machinery/FileKey.h"
#include "machinery/ScanContext.h"

#include <QString>

class ScanProgress;

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
