#pragma once

#include "machinery/ScanContext.h"
#include "vocabulary/FileTarget.h"

#include <QString>

#include <optional>

// A Trash target that remembers the state the scan saw, so the remover refuses an entry that
// changed after the scan: a regular file keeps its size and modification time, a folder the
// stamp of its whole tree. Thread-safe.
namespace StampedTarget {

struct Measured {
    FileTarget target;
    qint64 bytes = 0;  // allocated, as FileSizer measures them
};

// The target of `path` and what it takes on disk, a folder's from the same walk as its stamp.
// Entries count towards the context's progress. Absent when the entry vanished, or the
// folder's walk was cancelled.
[[nodiscard]] std::optional<Measured> measured(const QString& path, const ScanContext& context);

}  // namespace StampedTarget
