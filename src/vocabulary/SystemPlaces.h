#pragma once

#include <QString>
#include <QStringList>

// Places the desktop keeps for the person, which differ by system: data, chosen where asked.
// Thread-safe.
namespace SystemPlaces {

// The folder that holds what the person moved to the Trash: "~/.Trash" on macOS, the
// freedesktop home trash's "files" folder on Linux (which follows XDG_DATA_HOME).
[[nodiscard]] QString trashFolder(const QString& home);

// The system's shared temporary folders as named, before their real paths are resolved:
// "/private/tmp" and the per-user temporary folder on macOS; "/tmp", "/var/tmp" and $TMPDIR
// (when set) on Linux.
[[nodiscard]] QStringList systemTempFolders();

// Where Dustlark keeps its own files (the scan history, the cleanup lock, the notices):
// "~/Library/Application Support/Dustlark" on macOS, "$XDG_DATA_HOME/Dustlark" on Linux. Named
// here, not by the asking program's name, so the app, the report tool and the tests all meet
// at the same folder.
[[nodiscard]] QString appDataFolder();

}  // namespace SystemPlaces
