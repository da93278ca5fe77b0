#pragma once

#include <QString>

// Deletes a file, a symbolic link (never followed) or a whole folder tree for good, by
// descriptors: every entry is unlinked relative to its open folder, and each folder is opened
// relative to its parent without following a link, so a folder swapped for a link during the
// removal is never entered and nothing outside the tree can be reached. The owner is first
// given write permission through the tree (OwnerWrite), for trees kept read-only on purpose.
// Entries on another volume (a disk mounted inside) are left, and with them the folders
// holding them. Only for trees that are Dustlark's own to delete: the Trash being emptied, a
// move's own copies. Thread-safe; keeps no state.
namespace TreeRemoval {

// True when nothing is left at `path` (also when nothing was there).
bool removeTree(const QString& path);

}  // namespace TreeRemoval
