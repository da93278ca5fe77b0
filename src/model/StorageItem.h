#pragma once

#include "vocabulary/CleanupItem.h"
#include "vocabulary/ScanFilter.h"

#include <QString>
#include <QStringList>

// A folder or file of the storage screens as the item a cleanup or a move takes, so those rows
// go through the same confirmation, last checks and results as a scan's rows.
namespace StorageItem {

// The item for `path` as it stands now, at the `bytes` the analysis measured: one Trash target
// with the identity its status shows (a file's content stamp too), named "name in ~/folder",
// marked Risky like any file of the person's own. Locked with the sentence that says why when it
// is gone or a symbolic link, lies where removal may not reach (`scanRoots` decide the other
// disks), is the Trash or holds it, is on the Safe List or holds something on it, or is iCloud's.
[[nodiscard]] CleanupItem make(const QString& path, qint64 bytes, const ScanFilter& filter, const QString& home,
                               const QStringList& scanRoots);

}  // namespace StorageItem
