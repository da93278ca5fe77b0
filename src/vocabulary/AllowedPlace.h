#pragma once

#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QString>
#include <QStringList>

// Where removal may touch anything at all. Shared by the remover's last check and the scanners
// that must not offer a row the remover would refuse. Thread-safe (pure functions).
namespace AllowedPlace {

// Whether `path` is somewhere removal may touch: strictly inside `home`, an app bundle directly
// in "/Applications", or inside one of the `scanFolders` that lie on another disk than `home`.
// Paths with "..", "." or doubled slashes are never allowed.
[[nodiscard]] bool contains(const QString& path, const QString& home, const QStringList& scanFolders);

// Whether the scan folder `folder` lies on another disk than `home`: below "/Volumes/" on macOS;
// on Linux, where other disks are mounted anywhere, on another device than the home folder (a
// folder that can't be examined is not). A scan folder outside the home on the home's own disk
// gets no exception.
[[nodiscard]] bool isOtherVolume(const QString& folder, const QString& home);

// The cleaned `scanFolders` that lie on another disk than `home`.
[[nodiscard]] QStringList otherVolumeFolders(const QStringList& scanFolders, const QString& home);

// `items` with every row that removal would refuse for its place shown locked with the reason
// "It is outside your home folder." instead of being offered (rows of scan folders outside the
// home on the home's own disk). Rows already locked keep their reason.
[[nodiscard]] QList<CleanupItem> lockedOutside(QList<CleanupItem> items, const QString& home, const QStringList& scanFolders);

// True when `path` is an application bundle directly in "/Applications".
[[nodiscard]] bool isApplicationsBundle(const QString& path);

}  // namespace AllowedPlace
