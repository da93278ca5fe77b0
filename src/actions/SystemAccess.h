#pragma once

#include "actions/FreedesktopTrash.h"
#include "machinery/ProcessRunner.h"

#include <QDir>
#include <QString>
#include <QStringList>

#include <optional>

// The few operations on the system itself: Full Disk Access, emptying the Trash and showing a
// file in the file manager. On macOS they go through Finder and System Settings; on Linux
// through the freedesktop.org trash and xdg-open. Stateless and thread-safe; emptyTrash blocks
// its worker thread, the others return at once.
namespace SystemAccess {

// True when the person's privacy database can be opened for reading (it is closed at once,
// nothing is read). Linux has no such permission: always true there.
[[nodiscard]] bool hasFullDiskAccess(const QString& home = QDir::homePath());

// True when `path` can be opened read-only; the probe behind hasFullDiskAccess.
[[nodiscard]] bool canOpenForReading(const QString& path);

// Opens the Full Disk Access list in System Settings. False when there is none to open (Linux)
// or it couldn't be started.
bool openFullDiskAccessSettings();

// Empties the Trash: through Finder on macOS (Finder gets an hour), like a file manager on
// Linux. Nothing on success, otherwise one sentence. On Linux `progress` hears the items removed
// of the total and `stop` ends it between items; Finder reports neither. `osascript` is
// replaceable for tests.
[[nodiscard]] std::optional<QString> emptyTrash(const FreedesktopTrash::EmptyProgress& progress = {},
                                                const CancellationToken* stop = nullptr,
                                                const QString& osascript = QStringLiteral("/usr/bin/osascript"));

// The sentence for a failed run of Finder's empty-Trash script.
[[nodiscard]] QString trashFailure(const ProcessRunner::Output& output);

// The command that shows `path` in the file manager: selected in Finder on macOS; its folder
// opened on Linux. A path that no longer exists shows its parent folder.
[[nodiscard]] QStringList revealCommand(const QString& path);

// Shows `path` in the file manager: Finder selects it (`open -R`); on Linux the desktop's file
// manager is asked to select it over D-Bus, and when none answers its folder is opened with
// `opener` (the desktop's own opener). False when nothing could be started. May block for a
// few seconds: call it on a worker thread.
bool reveal(const QString& path, const QString& opener = QStringLiteral("/usr/bin/xdg-open"));

}  // namespace SystemAccess
