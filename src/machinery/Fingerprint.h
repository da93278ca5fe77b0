#pragma once

#include "machinery/CancellationToken.h"
#include "vocabulary/TreeStamp.h"

#include <QString>

#include <optional>

// The summary of a file tree that the remover compares with the scan's and the mover compares
// between an original and its copy. Thread-safe; every call is independent.
namespace Fingerprint {

// Walks `path` (a file or a folder) without following symbolic links and without leaving its
// volume, ignoring regular files named ".DS_Store". Entries that can't be read are counted in `unreadable`
// rather than failing the walk. Absent when `cancellation` (may be null) fired during the walk,
// since a partial summary would be mistaken for a change.
[[nodiscard]] std::optional<TreeStamp> compute(const QString& path,
                                               const CancellationToken* cancellation = nullptr);

}  // namespace Fingerprint
