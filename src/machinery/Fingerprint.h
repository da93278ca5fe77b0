#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/FileSizer.h"
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

struct Measured {
    TreeStamp stamp;
    FileSizer::Measurement size;
};

// `compute`'s stamp and `FileSizer::measure`'s measurement of `path` from one walk, for a row
// that is both measured and guarded. Entries go to `progress` (may be null) as FileSizer's do.
// Absent when `cancellation` fired during the walk.
[[nodiscard]] std::optional<Measured> measured(const QString& path, ScanProgress* progress,
                                               const CancellationToken* cancellation);

}  // namespace Fingerprint
