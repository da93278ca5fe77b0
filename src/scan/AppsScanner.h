#pragma once

#include "scan/AppFolders.h"
#include "scan/Scanner.h"

#include <QHash>
#include <QSet>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// Fills the `apps` category: one row per installed app, removing the bundle together with the
// data it keeps in the person's Library, matched by identifier and by name. Data that another
// installed app may also use (a shared identifier or application group, a folder another app's
// name claims) is never matched. A value type; scan() and the static steps hold no state and
// may run on any worker thread.
class AppsScanner : public Scanner {
public:
    struct App {
        QString path;      // the ".app" bundle, absolute
        QString bundleID;  // CFBundleIdentifier
        QString name;      // CFBundleDisplayName, else the bundle's name without ".app"
        std::optional<QString> version;
        QString executable;  // CFBundleExecutable, may be empty
        bool operator==(const App&) const = default;
    };

    // Everything that identifies one app's data: its own identifier, those of the code nested
    // in it, and its application groups.
    struct Identity {
        QStringList identifiers;  // bundleID first
        QStringList groups;
    };

    // How many installed apps use each identifier and group (lower-cased), and every installed
    // app, so matching can leave alone whatever another app also claims.
    struct Claims {
        QHash<QString, int> identifierUse;
        QHash<QString, int> groupUse;
        QList<App> apps;

        [[nodiscard]] static Claims of(const QList<App>& apps, const QList<Identity>& identities);
    };

    // A name folder left in place, and the app it may belong to.
    struct KeptFolder {
        QString folder;
        QString owner;
        bool operator==(const KeptFolder&) const = default;
    };

    struct Leftovers {
        QStringList paths;
        QList<KeptFolder> kept;
    };

    AppFolders folders;
    bool everything = false;  // also offer the system's own apps
    std::optional<QString> codesign = standardCodesign();
    std::function<QStringList()> runningExecutables = &defaultRunningExecutables;

    QList<CategoryID> categories() const override { return {CategoryID::apps}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The apps in `folders`' uninstaller places and one level of sub-folders below them, in
    // folder order; bundles without an identifier, symbolic links and this program are left out.
    [[nodiscard]] static QList<App> installedApps(const AppFolders& folders, const QString& home, bool everything);
    // Every app directly in `folder` and one level of sub-folders below it, this program included.
    [[nodiscard]] static QList<App> appsIn(const QString& folder);
    // The app in a bundle; absent when its Info.plist is missing, unreadable or has no identifier.
    [[nodiscard]] static std::optional<App> readApp(const QString& bundle);

    // Identifiers of the programs nested in the bundle, looked for `depth` levels deep.
    [[nodiscard]] static QStringList nestedCode(const QString& bundle, int depth = nestingDepth);
    // The same in only the given sub-folders of "Contents".
    [[nodiscard]] static QStringList nestedCode(const QString& bundle, const QStringList& subfolders, int depth);

    // The application groups of the bundle's code signature, read with `codesign`; empty when
    // there is no tool, the bundle is not signed or the tool fails.
    [[nodiscard]] static QStringList appGroups(const QString& bundle, const std::optional<QString>& codesign);
    // The groups in codesign's entitlements output.
    [[nodiscard]] static QStringList groupsInEntitlements(const QByteArray& output);

    // The app's data in home's Library that no other installed app claims, and the name
    // folders left in place because another app may own them.
    [[nodiscard]] static Leftovers leftovers(const App& app, const Identity& identity, const QString& home,
                                             bool fullDiskAccess, const Claims& claims);
    // The existing Library folders named after the app.
    [[nodiscard]] static QStringList nameFolders(const App& app, const QString& home);
    // Another app among `apps` whose name or identifier words claim `folder` (a folder name).
    [[nodiscard]] static std::optional<App> nameOwner(const QString& folder, const App& app, const QList<App>& apps);
    // "Visual Studio Code" -> Visual, Studio, Code; "com.vendor.NotesHelper" -> com, vendor, Notes, Helper.
    [[nodiscard]] static QStringList words(const QString& text);

    // The identifiers of the apps whose code runs now.
    [[nodiscard]] static QSet<QString> runningIdentifiers(const QStringList& executables);

    // The file whose last use tells when the app was last opened: the bundle, where the system
    // records app launches (Spotlight); elsewhere its main program, which a scan never reads,
    // while listing the bundle would itself count as a use.
    [[nodiscard]] static QString usageProbe(const App& app);

    // The note shown above the list without Full Disk Access.
    [[nodiscard]] static QString fullDiskAccessNote();

    [[nodiscard]] static std::optional<QString> standardCodesign();
    [[nodiscard]] static QStringList defaultRunningExecutables();

    // This program's own bundle identifier; its own bundle is never offered.
    static inline const QString ownBundleID = QStringLiteral("app.dustlark.Dustlark");
    // Programs nested in programs in frameworks are three levels down; deeper is not looked at.
    static constexpr int nestingDepth = 3;
};
