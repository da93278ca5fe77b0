#pragma once

#include "scan/Location.h"

#include <QList>
#include <QSet>
#include <QString>

// The fixed places below the home folder where tools and apps keep data, grouped by category.
// Each group is built on every call, so titles and details follow the current translation.
// Thread-safe: the functions hold no state but the claimed-folder set, built once.
namespace KnownLocations {

QList<Location> xcode();
QList<Location> android();
QList<Location> packageCaches();
QList<Location> aiModels();
QList<Location> devices();
QList<Location> editors();
QList<Location> browsers();
QList<Location> logs();

// One editor's caches: the cache subfolders of its folder in "Library/Application Support",
// as one row with the given (localised) title.
Location editorCaches(const QString& appFolder, const QString& title);

// The folder names directly inside "Library/Caches/" (and Linux's "~/.cache/") that the Xcode,
// Android, package-cache, editor and browser groups own (on Linux also AI models and logs),
// so the generic app-cache scan does not list them again.
const QSet<QString>& claimedCacheFolders();

// True when a cache or container folder of this name belongs to a cloud-file service
// (iCloud Drive, Dropbox, OneDrive, Google Drive, ...), whose sync state the cache scans
// leave alone.
bool isSyncServiceData(const QString& name);

// True when `path` lies in a cloud-synced folder directly in the home folder (Dropbox,
// OneDrive, Google Drive, ...), which scans leave alone.
bool isInSyncedHomeFolder(const QString& path, const QString& home);

}  // namespace KnownLocations
