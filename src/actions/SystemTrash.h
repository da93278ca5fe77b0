#pragma once

#include "actions/TrashOperation.h"

// The system's own move to the Trash: the Finder's on macOS (so that "Put Back" works), our
// own freedesktop.org trash through descriptors on Linux. Thread-safe; keeps no state.
namespace SystemTrash {

// Moves the request's object to the Trash and reports where it went; an object other than the
// requested one is put back and reported as `wrongObject`. Never deletes, never copies.
[[nodiscard]] TrashResult move(const TrashRequest& request);

}  // namespace SystemTrash
