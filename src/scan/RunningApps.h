#pragma once

#include "scan/AppOwner.h"
#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// Which apps run, answered for the cache and agent scanners from the scan's one reading of the
// running programs (ScanContext::runningPrograms). On macOS a program inside an application bundle stands for that bundle's
// identifier (read from its Info.plist); everywhere a program also stands for its executable's
// file name, which is how Linux apps are recognised. A plain value; reading it from several
// threads is safe.
class RunningApps {
public:
    // Reads the identifiers of the bundles the programs lie in (once per bundle).
    [[nodiscard]] static RunningApps from(const QStringList& executables);

    // Whether the app with this identifier runs: its bundle, a bundle nested in its name
    // space ("com.vendor.App.Helper" does not count, "com.vendor.App" for a folder named
    // "com.vendor.App.ShipIt" does), a known owner's program, or a program of that name.
    [[nodiscard]] bool isRunning(const QString& identifierOrName) const;
    [[nodiscard]] bool isRunning(const AppOwner& owner) const;

    // The running app among `owners` that owns `path` (an absolute path below `home`).
    [[nodiscard]] std::optional<AppOwner> runningOwner(const QString& path, const QString& home,
                                                       const QList<AppOwner>& owners) const;
    // The same against the table of known owners.
    [[nodiscard]] std::optional<AppOwner> runningOwner(const QString& path, const QString& home) const;

    // Locks every unlocked row whose first path a running known owner owns, with `reason`
    // of the owner's name.
    void lockRowsOfRunningOwners(QList<CleanupItem>& rows, const QString& home,
                                 QString (*reason)(const QString& app)) const;

    // Locked reasons of rows whose app runs; %1 is the app's name.
    [[nodiscard]] static QString quitToRemove(const QString& app);
    [[nodiscard]] static QString quitToCleanCaches(const QString& app);
    [[nodiscard]] static QString quitToCleanCache(const QString& app);

private:
    QSet<QString> m_bundleIDs;  // lower-cased
    QSet<QString> m_programs;   // lower-cased executable file names
};
