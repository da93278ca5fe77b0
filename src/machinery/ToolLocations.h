#pragma once

#include <QString>
#include <QStringList>

// Where the command-line tools Dustlark runs are installed: data that differs by system (macOS
// lists exactly the documented places; Linux adds its distribution's). Replaceable so that tests
// can let stand-in scripts play docker, xcrun, xcode-select, ps and osascript. Plain value.
struct ToolLocations {
    QStringList dockerCandidates;  // the first executable one is used
    QString xcrun;
    QString xcodeSelect;  // tells which Xcode is selected for builds
    QString ps;           // lists every process with its full command line
    QString osascript;

    // The documented install places, with the home folder's own docker.
    [[nodiscard]] static ToolLocations standard(const QString& home);

    // Where git is installed, in the order to try: Apple's command line tools, Xcode, Homebrew
    // on Apple silicon and on Intel; Linux adds the distribution's own.
    [[nodiscard]] static QStringList gitCandidates();
};
