#pragma once

#include "machinery/Descriptor.h"

#include <sys/stat.h>

// Gives the owner read, write and search permission on every folder of a tree, so that trees
// kept read-only on purpose (Go's module cache) can be moved to the Trash and emptied from it.
// Moving a folder to another one and deleting what a folder holds need write permission on
// that folder, never on the files: files keep their modes, and so does every other name a
// hard-linked file has outside the tree. Works through descriptors of the tree's own folders
// (openat without following links, identity compared, fchmod), so an entry swapped for a
// symbolic link mid-walk is never followed or changed. Thread-safe; keeps no state.
namespace OwnerWrite {

// `root` is an open descriptor of the file or folder itself (opened without following a link),
// the one its identity was checked on. True when every folder is now writable by its owner
// (also for a file, which is left as it is).
bool addThroughTree(int root);

// Opens the folder `name` of the open folder `folder`, which was listed as `listed`, without
// following a link; one its owner can't read is first given read and search permission, only
// while it is still that folder. Invalid (errno set) when it can't be opened.
[[nodiscard]] Descriptor openFolder(int folder, const char* name, const struct stat& listed);

}  // namespace OwnerWrite
