#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/CleanupItem.h"

// Removes one cleanup item at the moment the cleanup session reaches it: files go to the Trash
// after every target is checked again against the scan; Docker objects and simulators are
// removed for good by their own tools. Stateless; every call blocks its worker thread until
// done and is safe on any thread but the GUI's.
namespace Remover {

using Outcome = RemovalOutcome;

// Moved to the Trash, removed by its tool, or failed with one sentence. Never throws; a
// locked item is refused with its lock reason.
[[nodiscard]] Outcome remove(const CleanupItem& item, const RemovalEnvironment& environment);

}  // namespace Remover
