#pragma once

#include "machinery/CancellationToken.h"
#include "vocabulary/FileTarget.h"

#include <QString>

#include <optional>

// A Trash target that remembers the state the scan saw, so the remover refuses an entry that
// changed after the scan: a regular file keeps its size and modification time, a folder the
// stamp of its whole tree. Thread-safe.
namespace StampedTarget {

// Absent when the entry vanished, or the folder's walk was cancelled (`cancellation` may be null).
[[nodiscard]] std::optional<FileTarget> of(const QString& path, const CancellationToken* cancellation = nullptr);

}  // namespace StampedTarget
