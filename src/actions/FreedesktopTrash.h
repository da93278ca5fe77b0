#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The freedesktop.org trash as Linux file managers keep it: "files/" holds the trashed objects,
// "info/" one ".trashinfo" per object. Only the layout knowledge lives here; the move itself is
// Qt's. Thread-safe; keeps no state.
namespace FreedesktopTrash {

// The home trash: $XDG_DATA_HOME/Trash (by default ~/.local/share/Trash).
[[nodiscard]] QString homeTrash();

// Creates the home trash's "files" and "info" folders when missing (owner only). Qt's move
// silently uses the working folder when they can't be established, so it must never run
// without them. False when they can't be made.
[[nodiscard]] bool prepareHomeTrash();

// True when `pathInTrash` is an absolute path directly inside a "files" folder that the
// freedesktop rules allow for `originalPath`: the home trash, or the top folder's
// ".Trash/UID" or ".Trash-UID" of the volume holding the original.
[[nodiscard]] bool isTrashLocation(const QString& pathInTrash, const QString& originalPath);

// The info file that belongs to an object in a trash's "files" folder; empty when the path
// is not in one.
[[nodiscard]] QString infoFile(const QString& pathInTrash);

// Empties the home trash the way a file manager does: every object in "files" with its info
// file, orphaned info files, and the "expunged" leftovers. Read-only trees are made writable
// first. Nothing when all went; otherwise one sentence.
[[nodiscard]] std::optional<QString> empty();

}  // namespace FreedesktopTrash
