#pragma once

#include "actions/TrashOperation.h"

// The system's own move to the Trash: the Finder's on macOS, the freedesktop.org trash on
// Linux (both through QFile::moveToTrash). Thread-safe; keeps no state.
namespace SystemTrash {

// Moves `path` to the Trash and reports where it went. On Linux the home trash folders are
// made first and the reported place is checked; a move that landed anywhere else is undone and
// reported as a failure. Never deletes.
[[nodiscard]] TrashResult move(const QString& path);

// Forgets the record that the Trash keeps about an object that was just taken back out of it
// (the freedesktop info file); nothing to do on macOS.
void discardRecord(const QString& pathInTrash);

}  // namespace SystemTrash
