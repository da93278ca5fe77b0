#pragma once

#include "machinery/FileKey.h"
#include "machinery/ScanContext.h"

#include <QString>

#include <optional>
#include <sys/stat.h>
#include <vector>

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

    // How a walk adds up, for the walks that measure while they do something else. A repeated
    // hard link is the walk's to leave out before `addItem`.
    void addFolder(const struct stat& info);
    void addItem(const struct stat& info);  // anything that is not a folder
    void addProblem(int depth);             // an entry that could not be read
    void addStop();                         // the walk was stopped before its end
    Measurement& operator+=(const Measurement& later);
};

// `progress` may be null; `cancellation` may be null (then the walk cannot be stopped).
Measurement measure(const QString& path, ScanProgress* progress = nullptr,
                    const CancellationToken* cancellation = nullptr);

// Each of `paths` measured as by measure(), `atOnce` at a time on threads of their own
// (Concurrency::mapOnOwnTables), in the order given; absent for a path not measured because
// `cancellation` fired first.
std::vector<std::optional<Measurement>> measureAll(const std::vector<QString>& paths, int atOnce,
                                                   ScanProgress* progress, const CancellationToken& cancellation);

}  // namespace FileSizer
