#pragma once

#include "scan/AppFolders.h"
#include "scan/AppsScanner.h"
#include "scan/FlatpakApps.h"
#include "scan/Scanner.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// Fills the `leftovers` category: data in the person's Library (and, on Linux, in the Flatpak
// data folder) of apps that are no longer installed, one row per app identifier. Whatever an
// installed app, its vendor or anything changed in the last 30 days may still use is left out.
// A value type; scan() and the static steps hold no state and may run on any worker thread.
class LeftoversScanner : public Scanner {
public:
    // Identifier -> the paths found for it.
    using Groups = QMap<QString, QStringList>;

    AppFolders folders;
    std::optional<FlatpakApps> flatpak = FlatpakApps::standard();
    std::optional<QString> codesign = AppsScanner::standardCodesign();

    QList<CategoryID> categories() const override { return {CategoryID::leftovers}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The identifiers (lower-cased) of every installed app and of the helpers and login items
    // nested in it.
    [[nodiscard]] static QSet<QString> installedIdentifiers(const AppFolders& folders, const QString& home);

    // The application groups (lower-cased) of every installed app's signature: a group
    // container another vendor's app uses is not left over, whatever its name says.
    [[nodiscard]] static QSet<QString> installedGroups(const AppFolders& folders, const QString& home,
                                                       const std::optional<QString>& codesign,
                                                       const CancellationToken& cancellation);
    // `candidates` without the group containers of `groups`.
    [[nodiscard]] static Groups withoutGroups(const Groups& candidates, const QSet<QString>& groups);

    // The Library entries that carry an identifier, grouped by it; Containers only with Full
    // Disk Access. Launch agents go with the app of the program they start.
    [[nodiscard]] static Groups candidates(const QString& home, bool fullDiskAccess);

    // What is left after the exclusions: Apple's, installed apps', and installed vendors'.
    [[nodiscard]] static Groups removed(const Groups& candidates, const QSet<QString>& installed);

    // "com.a.App.plist" -> "com.a.App", "group.com.a.App" -> "com.a.App"; absent for names that
    // carry no reverse-DNS identifier.
    [[nodiscard]] static std::optional<QString> identifier(const QString& name);
    // The maker's part of an identifier: its first two components, lower-cased.
    [[nodiscard]] static QString vendor(const QString& identifier);
    // The program a launch agent starts ("Program", else the first of "ProgramArguments").
    [[nodiscard]] static std::optional<QString> launchAgentProgram(const QString& plist);
    // The kinds of personal data found in the paths that hold an app's own data.
    [[nodiscard]] static QStringList userDataSigns(const QStringList& paths, const CancellationToken* cancellation = nullptr);
    // The app's name as the leftovers tell it, else the identifier.
    [[nodiscard]] static QString displayName(const QString& identifier, const QStringList& paths);

    // Linux: data folders of Flatpak apps that are no longer installed, by app ID. Empty when
    // `flatpak` is absent or its installations can't be read.
    [[nodiscard]] static Groups flatpakLeftovers(const QString& home, const std::optional<FlatpakApps>& flatpak);

    // Anything changed more recently than this is taken to be in use.
    static constexpr int quietDays = 30;
};
