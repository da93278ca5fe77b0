#pragma once

#include <QString>

// Gives the owner write permission on a file or on every entry of a folder tree, so that trees
// kept read-only on purpose (Go's module cache) can be moved to the Trash and emptied from it.
// Symbolic links are neither followed nor changed. Thread-safe; keeps no state.
namespace OwnerWrite {

// True when every entry is now writable by its owner.
bool addThroughTree(const QString& path);

}  // namespace OwnerWrite
