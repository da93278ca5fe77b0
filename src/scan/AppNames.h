#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// Display names of installed apps, for titling the cache and log folders apps leave in the
// Library. Those folders are named after a bundle identifier ("com.microsoft.VSCode") or
// after the app itself ("Homebrew").
namespace AppNames {

// Lower-cased bundle identifier -> the app's display name.
using Directory = QHash<QString, QString>;

// The folders whose applications name folders: /Applications (and its Utilities),
// /System/Applications and the person's own Applications folder.
QStringList applicationFolders(const QString& home);

// Reads the Info.plist of every app directly in `folders`, and of apps one folder deeper
// (vendors often group their apps in a folder). Unreadable bundles are skipped.
Directory read(const QStringList& folders);

// The app's name for a folder: the installed app whose identifier is the folder's name (or,
// for helper folders like "com.vendor.App.ShipIt", its longest installed prefix); otherwise
// a reverse-DNS identifier's last component, and any other name as it is.
QString name(const QString& folder, const Directory& directory);

// The same against the installed apps, read once per process on first use. Thread-safe.
QString name(const QString& folder);

// True for names shaped like a bundle identifier ("com.apple.Safari", "io.sentry").
bool isReverseDNS(const QString& name);

}  // namespace AppNames
