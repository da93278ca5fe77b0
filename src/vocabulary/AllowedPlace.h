#pragma once

#include <QString>
#include <QStringList>

// Where removal may touch anything at all. Shared by the remover's last check and the scanners
// that must not offer a row the remover would refuse. Thread-safe (pure functions).
namespace AllowedPlace {

// Whether `path` is somewhere removal may touch: strictly inside `home`, an app bundle directly
// in "/Applications", or inside one of `otherVolumeFolders` (scan folders on another disk).
// Paths with "..", "." or doubled slashes are never allowed.
[[nodiscard]] bool contains(const QString& path, const QString& home, const QStringList& otherVolumeFolders);

// True when `path` is an application bundle directly in "/Applications".
[[nodiscard]] bool isApplicationsBundle(const QString& path);

}  // namespace AllowedPlace
