#include "vocabulary/AllowedPlace.h"

#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>

#include <algorithm>

namespace AllowedPlace {

namespace {

bool isStrictlyInside(const QString& path, const QString& folder)
{
    return !folder.isEmpty() && path != folder && PathRules::isAtOrBelow(path, folder);
}

// "..", "." and doubled slashes could lead a path that looks inside the home folder out of it.
bool isNormalAbsolute(const QString& path)
{
    return path.startsWith(QLatin1Char('/')) && QDir::cleanPath(path) == path;
}

}  // namespace

bool isOtherVolume(const QString& folder, const QString& home)
{
    if (Platform::desktop() == Platform::Desktop::finder)
        return folder.startsWith(QLatin1String("/Volumes/"));
    // Linux mounts other disks anywhere (/mnt, /media, /run/media, a data partition), so the
    // device number tells, not the path.
    const auto folderStatus = FileStatus::of(folder);
    const auto homeStatus = FileStatus::of(home);
    return folderStatus && homeStatus && S_ISDIR(folderStatus->st_mode) && folderStatus->st_dev != homeStatus->st_dev;
}

QStringList otherVolumeFolders(const QStringList& scanFolders, const QString& home)
{
    QStringList folders;
    for (const QString& folder : scanFolders) {
        const QString clean = QDir::cleanPath(folder);
        if (isOtherVolume(clean, home))
            folders.append(clean);
    }
    return folders;
}

namespace {

bool isInside(const QString& path, const QString& home, const QStringList& otherVolumes)
{
    if (!isNormalAbsolute(path))
        return false;
    if (isStrictlyInside(path, QDir::cleanPath(home)) || isApplicationsBundle(path))
        return true;
    return std::any_of(otherVolumes.begin(), otherVolumes.end(), [&](const QString& folder) { return isStrictlyInside(path, folder); });
}

}  // namespace

bool contains(const QString& path, const QString& home, const QStringList& scanFolders)
{
    return isInside(path, home, otherVolumeFolders(scanFolders, home));
}

QList<CleanupItem> lockedOutside(QList<CleanupItem> items, const QString& home, const QStringList& scanFolders)
{
    const QStringList otherVolumes = otherVolumeFolders(scanFolders, home);
    for (CleanupItem& item : items) {
        const QStringList paths = item.removal.paths();
        const bool outside = std::any_of(paths.begin(), paths.end(), [&](const QString& path) { return !isInside(path, home, otherVolumes); });
        if (outside && !item.lockedReason)
            item.lockedReason = RemovalReasons::outsideHome();
    }
    return items;
}

bool isApplicationsBundle(const QString& path)
{
    static const QString applications = QStringLiteral("/Applications/");
    return path.startsWith(applications) && path.endsWith(QLatin1String(".app"))
        && path.size() > applications.size() + 4 && path.indexOf(QLatin1Char('/'), applications.size()) < 0;
}

}  // namespace AllowedPlace
