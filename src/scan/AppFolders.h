#pragma once

#include <QString>
#include <QStringList>

// The system folders where installed apps lie, as data, so tests can put fixture bundles in
// temporary folders instead. The person's own "~/Applications" follows the home folder and
// needs no entry here. Plain value.
struct AppFolders {
    QString applications = QStringLiteral("/Applications");
    QString systemApplications = QStringLiteral("/System/Applications");
    QString coreServices = QStringLiteral("/System/Library/CoreServices");

    // Where the uninstaller offers apps: "/Applications", the home's "Applications" and, only
    // with `everything`, the system's own apps.
    [[nodiscard]] QStringList forUninstaller(const QString& home, bool everything) const;

    // Every folder whose apps count as installed when deciding what is left over.
    [[nodiscard]] QStringList forInstalledIdentifiers(const QString& home) const;

    [[nodiscard]] static QString personal(const QString& home) { return home + QStringLiteral("/Applications"); }
};
