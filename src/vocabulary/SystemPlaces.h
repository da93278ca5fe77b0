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

}  // namespace SystemPlaces
