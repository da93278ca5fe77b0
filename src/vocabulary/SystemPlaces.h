#pragma once

#include <QString>

// Places the desktop keeps for the person, which differ by system: data, chosen where asked.
// Thread-safe.
namespace SystemPlaces {

// The folder that holds what the person moved to the Trash: "~/.Trash" on macOS, the
// freedesktop home trash's "files" folder on Linux (which follows XDG_DATA_HOME).
[[nodiscard]] QString trashFolder(const QString& home);

}  // namespace SystemPlaces
