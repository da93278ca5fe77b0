#pragma once

#include <QByteArray>
#include <QDateTime>

// The names and the ".trashinfo" text of the freedesktop.org trash format, as bytes:
// names on Linux are bytes, and the info file must give them back exactly. Pure functions.
namespace TrashInfo {

inline constexpr char suffix[] = ".trashinfo";

// The name to try in a trash's "files" folder on the `attempt`-th try (1 first): `name`, then
// "name.2", "name.3", ..., cut at a character boundary so that the info file's name (the name
// with ".trashinfo") still fits the 255 bytes a file name may have.
[[nodiscard]] QByteArray candidateName(const QByteArray& name, int attempt);

// The info file's text: `Path=` percent-encoded the freedesktop trash's way (every byte but
// unreserved ASCII and "/"), `DeletionDate=` in local time without a zone.
[[nodiscard]] QByteArray contents(const QByteArray& originalPath, const QDateTime& deleted);

}  // namespace TrashInfo
