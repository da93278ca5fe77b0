#pragma once

#include <QString>
#include <QStringList>

// An app that owns places below the home folder and must be quit before they are cleaned.
// Plain value.
struct AppOwner {
    QString name;            // display name, used in "Quit %1" texts
    QStringList bundleIDs;   // macOS application identifiers
    QStringList programs;    // executable file names of its processes where there are no bundles (Linux)
    QStringList folders;     // places it owns, relative to the home folder

    bool operator==(const AppOwner&) const = default;
};
