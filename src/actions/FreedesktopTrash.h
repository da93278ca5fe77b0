#pragma once

#include "actions/TrashOperation.h"
#include "machinery/CancellationToken.h"

#include <QString>
#include <QStringList>

#include <functional>

#include <optional>

// The freedesktop.org trash as Linux file managers keep it: "files/" holds the trashed objects,
// "info/" one ".trashinfo" per object. Our own implementation, through descriptors from end to
// end, so nothing is ever resolved by path after the last check. Thread-safe; keeps no state.
namespace FreedesktopTrash {

// The home trash: $XDG_DATA_HOME/Trash (by default ~/.local/share/Trash).
[[nodiscard]] QString homeTrash();

// Creates the home trash's "files" and "info" folders when missing (owner only). False when
// they can't be made.
[[nodiscard]] bool prepareHomeTrash();

// Moves the request's object into the home trash, or, when it lies on another volume, into
// that volume's own trash; never copies, never deletes. The info file is written completely
// (checked on write and close) before the object is renamed next to it, without replacing
// anything; it is removed again when the rename fails. The object that arrived is checked
// against the request's identity, and a different one is put back where it was.
[[nodiscard]] TrashResult moveAt(const TrashRequest& request);

// Empties the home trash the way a file manager does: every object in "files" with its info
// file, orphaned info files, and the "expunged" leftovers. The trash is opened from the home
// folder down without following a link and its folders are held for the whole emptying, so
// everything removed lies in the held "files"; a "files" or "info" that is a link or on another
// volume is refused and nothing is removed. Read-only folders are made writable; files keep
// their modes. `progress` hears the objects removed so far of all in "files", after each one;
// `stop` is polled between objects. Nothing when all went; otherwise one sentence.
using EmptyProgress = std::function<void(int removed, int total)>;
[[nodiscard]] std::optional<QString> empty(const EmptyProgress& progress = {}, const CancellationToken* stop = nullptr);

// Why an emptying ended before everything went: the person stopped it.
[[nodiscard]] QString stoppedSentence();

}  // namespace FreedesktopTrash
