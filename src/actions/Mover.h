#pragma once

#include "actions/MoverEnvironment.h"
#include "actions/MoverOutcome.h"
#include "actions/MoverProgress.h"
#include "machinery/CancellationToken.h"
#include "vocabulary/CleanupItem.h"
#include "vocabulary/TreeStamp.h"

#include <QString>

#include <functional>
#include <optional>

// Moves an item's files and folders to a folder on another disk: copies them into a work folder
// there, proves the copy matches the original, puts it in place without replacing anything and
// only then sends the original to the Trash. Any failure or stop before the original is touched
// leaves the destination as it was. Stateless; every call blocks its worker thread (never the
// GUI thread) and is independent of the others.
namespace Mover {

// Nothing when `destination` can take `item`, otherwise the sentence of the first check that
// fails: a folder, writable, on another disk, no two parts whose names differ only in case, no
// entry of such a name there yet.
[[nodiscard]] std::optional<QString> problem(const QString& destination, const CleanupItem& item);

// Moves `item` (only Trash removals) into `destination`. Stopping is
// `environment.removal.cancellation`; it is honoured until the original goes to the Trash.
[[nodiscard]] Outcome move(const CleanupItem& item, const QString& destination, const Progress& progress,
                           const Environment& environment);

// The summary of the tree at `path` that the copy is compared by; absent when stopped.
[[nodiscard]] std::optional<TreeStamp> fingerprint(const QString& path, const CancellationToken* stoppable);

}  // namespace Mover
