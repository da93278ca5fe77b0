#pragma once

#include <QString>
#include <QStringList>

// Where the tools that remove things for good live. Replaceable so that tests can let
// stand-in scripts play docker, xcrun and osascript. Plain value.
struct ToolLocations {
    QStringList dockerCandidates;  // the first executable one is used
    QString xcrun;
    QString osascript;

    // The documented install places, with the home folder's own docker.
    [[nodiscard]] static ToolLocations standard(const QString& home);
};
