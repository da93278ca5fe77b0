#pragma once

#include "machinery/ScanContext.h"
#include "vocabulary/CleanupItem.h"
#include "vocabulary/FileTarget.h"

#include <QList>
#include <QString>

#include <optional>

// Finds files with exact copies among the walk's candidates and turns every set of identical
// files into Duplicates rows, one per copy, tied together by the group's content digest.
// Stateless; every function is thread-safe.
namespace DuplicateFinder {

// One candidate file, as the walk found it.
struct File {
    QString path;
    qint64 size = 0;       // logical length: the grouping key
    qint64 allocated = 0;  // bytes on disk: the row's size
    qint32 device = 0;
    quint64 inode = 0;
    FileTarget::ContentStamp stamp;  // handed to the row's target so a changed file is refused
    bool operator==(const File&) const = default;
};

// What one run read, so callers (and tests) can see that whole files are read only when
// another file shares their size, first 64 KiB and last 64 KiB.
struct Stats {
    qint64 bytesRead = 0;
    qint64 filesRead = 0;       // files whose first 64 KiB were hashed
    qint64 filesReadTail = 0;   // files whose last 64 KiB were hashed
    qint64 filesReadWhole = 0;  // files read past their first 64 KiB
    qint64 sharedStorage = 0;   // identical copies left out because they share a kept copy's blocks
};

struct Outcome {
    QList<CleanupItem> items;
    Stats stats;
};

// Compares the candidates' contents and returns the rows: groups in descending file size,
// members oldest first. Runs synchronously on the calling worker thread (hashing up to four
// size groups at once), advances the context's progress per file hashed, and stops hashing
// once the context is cancelled, keeping the groups already finished. A file that cannot be
// read, or that changed since the walk, is left out.
[[nodiscard]] Outcome find(const QList<File>& files, const ScanContext& context);
[[nodiscard]] QList<CleanupItem> items(const QList<File>& files, const ScanContext& context);

// SHA-256 of the file's content as lowercase hex, of its first `limit` bytes when given;
// absent when the file cannot be opened or read.
[[nodiscard]] std::optional<QString> digest(const QString& path,
                                            std::optional<qint64> limit = std::nullopt);

}  // namespace DuplicateFinder
