#pragma once

#include <QString>

// The sentences that say why an item was not removed, in one place so the checks, the trash
// move and the tools word the same fault the same way. Thread-safe (translation lookups only).
namespace RemovalReasons {

[[nodiscard]] QString outsideHome();
[[nodiscard]] QString noLongerExists();
[[nodiscard]] QString symbolicLink();
[[nodiscard]] QString changedSinceScan();
[[nodiscard]] QString pathThroughSymbolicLink();
[[nodiscard]] QString folderUnreadable();
[[nodiscard]] QString gitLocked();
[[nodiscard]] QString running();
[[nodiscard]] QString changedInLastDay();
[[nodiscard]] QString emptyTrashInstead();
// The Safe List protects it, or something inside it.
[[nodiscard]] QString onSafeList();
[[nodiscard]] QString holdsSafeListItem();
// Moving it would move the Trash into itself.
[[nodiscard]] QString holdsTrash();
// iCloud keeps it; no scan offers it either.
[[nodiscard]] QString keptByICloud();
// Its name holds bytes that are not valid text, so the name shown could mean another file.
[[nodiscard]] QString ambiguousName();
// The file manager's trash refused; `systemReason` is its own description, may be empty.
[[nodiscard]] QString trashFailed(const QString& systemReason);
// A tool could not even be started; `systemReason` is the system's description.
[[nodiscard]] QString toolDidNotStart(const QString& systemReason);

}  // namespace RemovalReasons
