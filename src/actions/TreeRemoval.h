#pragma once

#include "machinery/FileKey.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Deletes a file, a symbolic link (never followed) or a whole folder tree for good, by
// descriptors. The tree is opened once, relative to a folder the caller already holds, without
// following a link; everything below is reached from that descriptor (each folder opened
// relative to its parent with O_NOFOLLOW and checked to be the folder that was listed, each
// entry unlinked relative to its open folder), so a folder swapped for a link during the
// removal is never entered and nothing outside the tree can be reached. Folders the owner can't
// write are given the owner's write permission through their own descriptors (OwnerWrite); files
// keep their modes. Entries on another volume (a disk mounted inside) are left, and with them
// the folders holding them. Only for trees that are Dustlark's own to delete: the Trash being
// emptied, a move's own copies. Thread-safe; keeps no state.
namespace TreeRemoval {

// Removes the entry `name` of the open folder `parent`: a file or a link alone, a folder with
// everything in it. With `expected`, only the object of that identity is removed; another one
// under the name is left alone. True when nothing is left under `name` (also when nothing was
// there); false when something stayed or another object holds the name.
[[nodiscard]] bool removeAt(int parent, const QByteArray& name, std::optional<FileKey> expected = std::nullopt);

// The same for the last entry of `path`, whose folder is opened by the path as given (links in
// the folder part followed, as the caller named it). Only for a path the caller has just made
// and holds no folder of; a tree reached from a held folder goes through removeAt.
bool removeTree(const QString& path);

}  // namespace TreeRemoval
