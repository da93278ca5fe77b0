#pragma once

#include <QString>

// The fixed places below the home folder where tools and apps keep data, grouped by category.
namespace KnownLocations {

// True when `path` lies in a cloud-synced folder directly in the home folder (Dropbox,
// OneDrive, Google Drive, ...), which scans leave alone.
bool isInSyncedHomeFolder(const QString& path, const QString& home);

}  // namespace KnownLocations
