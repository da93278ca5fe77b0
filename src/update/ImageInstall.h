#pragma once

#include <QString>

#include <chrono>
#include <optional>

// The part of an update install that runs after the disk image was downloaded and its digest
// checked: mount it, copy its app next to the running one, unmount it, verify the copy's
// signature and build, and swap it in. Blocks for minutes at most (the tools' time limits):
// call it on a worker thread. Every failure before the swap leaves the running copy as it was.
namespace ImageInstall {

// Where the three tools are and how long an attach may take; tests point these at stand-in
// scripts and shorten the wait.
struct Tools {
    QString hdiutil = QStringLiteral("/usr/bin/hdiutil");
    QString ditto = QStringLiteral("/usr/bin/ditto");
    QString codesign = QStringLiteral("/usr/bin/codesign");
    std::chrono::milliseconds attachTimeLimit{120'000};
};

// Whom a new copy must come from: the running app's own identifier and signing team.
struct Identity {
    QString bundleIdentifier;
    QString team;
};

// Installs the app in `image` in place of the app at `appPath`. Absent on success (the new app
// is at `appPath`, the old one removed); otherwise the sentence to show. An image that asks to
// accept a licence agreement is refused before it is attached. Temporary folders are removed
// and the image detached on every path out, also after an attach that ran out of time.
[[nodiscard]] std::optional<QString> install(const QString& image, const QString& appPath, const Identity& own,
                                             const Tools& tools = {});

// The signing team of the app at `appPath` as codesign reports it ("TeamIdentifier=..."); absent
// when it is unsigned or the tool fails.
[[nodiscard]] std::optional<QString> ownTeam(const QString& appPath, const Tools& tools = {});

// The app's "CFBundleVersion" from its Contents/Info.plist, when it is a readable whole number.
[[nodiscard]] std::optional<qint64> build(const QString& appPath);

}  // namespace ImageInstall
