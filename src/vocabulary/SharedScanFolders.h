#pragma once

#include <QStringList>

// The scan folders that lie on other volumes, published by the GUI thread so that removal and
// moving code on worker threads can learn which other disks the person scans without touching
// the settings store. Thread-safe: the list is guarded by a mutex; readers get a copy.
namespace SharedScanFolders {

// Replaces the published list with the folders of `scanRoots` that begin with "/Volumes/".
void publish(const QStringList& scanRoots);
// The last published list; empty before the first publish.
[[nodiscard]] QStringList current();

}  // namespace SharedScanFolders
