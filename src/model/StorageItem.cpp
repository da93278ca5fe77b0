#include "model/StorageItem.h"

#include "vocabulary/AllowedPlace.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/ItemName.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/RemovalReasons.h"
#include "vocabulary/SystemPlaces.h"

#include <cerrno>

namespace StorageItem {

namespace {

// The target as it stands; the reason instead when there is nothing the remover could take.
std::optional<FileTarget> targetAt(const QString& path, QString* reason)
{
    const std::optional<struct stat> info = FileStatus::of(path);
    if (!info) {
        *reason = errno == ENOENT || errno == ENOTDIR ? RemovalReasons::noLongerExists() : RemovalReasons::folderUnreadable();
        return std::nullopt;
    }
    if (S_ISLNK(info->st_mode)) {
        *reason = RemovalReasons::symbolicLink();
        return std::nullopt;
    }
    std::optional<FileTarget> target = FileTarget::make(path);
    if (!target)
        *reason = RemovalReasons::noLongerExists();
    else if (S_ISREG(info->st_mode))
        target->content = FileTarget::ContentStamp::of(*info);  // a file rewritten since is not the one chosen
    return target;
}

// The Trash goes with Empty Trash; a folder holding it could only be moved into itself.
std::optional<QString> trashReason(const QString& path, const QString& home)
{
    const QString trash = SystemPlaces::trashFolder(home);
    if (PathRules::isAtOrBelow(path, trash))
        return RemovalReasons::emptyTrashInstead();
    if (PathRules::isAtOrBelow(trash, path))
        return RemovalReasons::holdsTrash();
    return std::nullopt;
}

std::optional<QString> safeListReason(const CleanupItem& item, const ScanFilter& filter, const QString& path)
{
    if (filter.protects(item))
        return RemovalReasons::onSafeList();
    if (filter.holdsSafePath(path))
        return RemovalReasons::holdsSafeListItem();
    if (filter.drops(item))
        return RemovalReasons::keptByICloud();
    return std::nullopt;
}

}  // namespace

CleanupItem make(const QString& path, qint64 bytes, const ScanFilter& filter, const QString& home, const QStringList& scanRoots)
{
    CleanupItem item;
    item.id = path;  // as a Large Files row's, so that row goes too once this one has
    item.category = CategoryID::largeFiles;
    item.title = ItemName::inFolder(path, home);
    item.size = bytes;
    QString reason;
    const std::optional<FileTarget> target = targetAt(path, &reason);
    item.removal = Removal::trash(target ? QList<FileTarget>{*target} : QList<FileTarget>{});
    if (!target) {
        item.lockedReason = reason;
        return item;
    }
    item = AllowedPlace::lockedOutside({item}, home, scanRoots).constFirst();
    if (!item.lockedReason)
        item.lockedReason = trashReason(path, home);
    if (!item.lockedReason)
        item.lockedReason = safeListReason(item, filter, path);
    return item;
}

}  // namespace StorageItem
