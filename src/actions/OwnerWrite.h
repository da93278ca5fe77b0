#pragma once

#include <QString>

// Gives the owner write permission on a file or on every entry of a folder tree, so that trees
// kept read-only on purpose (Go's module cache) can be moved to the Trash and emptied from it.
// Works through descriptors only (openat without following links, fchmod), so an entry swapped
// for a symbolic link mid-walk is never followed or changed. Thread-safe; keeps no state.
namespace OwnerWrite {

// `root` is an open descriptor of the file or folder itself (opened without following a link),
// the one its identity was checked on. True when every entry is now writable by its owner.
bool addThroughTree(int root);

// The same for the object at `path`, opened without following a final link; for trees that
// are ours already (the Trash's contents).
bool addThroughTree(const QString& path);

}  // namespace OwnerWrite
