#include "scan/AppsScanner.h"

#include "machinery/FileInfo.h"
#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "scan/PropertyList.h"
#include "vocabulary/FileStatus.h"

#include <QSet>

#include <algorithm>

namespace {

const QStringList programSuffixes = {QStringLiteral(".appex"), QStringLiteral(".app"), QStringLiteral(".xpc"),
                                     QStringLiteral(".systemextension")};

// Where code nested in a bundle lies below "Contents/", in the order it is looked at.
const QStringList nestedFolders = {
    QStringLiteral("PlugIns"), QStringLiteral("Extensions"), QStringLiteral("Library/LoginItems"),
    QStringLiteral("Library/SystemExtensions"), QStringLiteral("Library/LaunchServices"),
    QStringLiteral("XPCServices"), QStringLiteral("Helpers"), QStringLiteral("Library/Helpers"),
    QStringLiteral("MacOS"), QStringLiteral("Frameworks"),
};

const QString applicationGroupsKey = QStringLiteral("com.apple.security.application-groups");

QStringList sortedChildren(const QString& folder)
{
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    return names;
}

bool isProgram(const QString& name)
{
    return std::any_of(programSuffixes.begin(), programSuffixes.end(),
                       [&](const QString& suffix) { return name.endsWith(suffix); });
}

// Apps directly in `folder` and in its visible sub-folders; links are never followed.
void addAppsIn(const QString& folder, bool descend, QList<AppsScanner::App>& apps)
{
    for (const QString& name : sortedChildren(folder)) {
        const QString path = folder + QLatin1Char('/') + name;
        if (name.startsWith(QLatin1Char('.')) || !FileStatus::isFolder(path))
            continue;
        if (name.endsWith(QLatin1String(".app"))) {
            if (auto app = AppsScanner::readApp(path))
                apps.append(*app);
        } else if (descend) {
            addAppsIn(path, false, apps);
        }
    }
}

void addNestedIn(const QString& folder, int depth, QStringList& identifiers);

void addFrameworkVersions(const QString& framework, int depth, QStringList& identifiers)
{
    const QString versions = framework + QStringLiteral("/Versions");
    for (const QString& version : sortedChildren(versions)) {
        const QString root = versions + QLatin1Char('/') + version;
        if (!FileStatus::isFolder(root))
            continue;  // "Current" is a link to one of the others
        for (const QString& sub : {QStringLiteral("XPCServices"), QStringLiteral("Helpers"), QStringLiteral("PlugIns")})
            addNestedIn(root + QLatin1Char('/') + sub, depth, identifiers);
    }
}

void addNestedIn(const QString& folder, int depth, QStringList& identifiers)
{
    if (depth <= 0)
        return;
    for (const QString& name : sortedChildren(folder)) {
        const QString path = folder + QLatin1Char('/') + name;
        if (!FileStatus::isFolder(path))
            continue;
        if (name.endsWith(QLatin1String(".framework"))) {
            addFrameworkVersions(path, depth - 1, identifiers);
            continue;
        }
        if (!isProgram(name))
            continue;
        if (auto app = AppsScanner::readApp(path); app && !identifiers.contains(app->bundleID))
            identifiers.append(app->bundleID);
        identifiers += AppsScanner::nestedCode(path, nestedFolders, depth - 1);
        identifiers.removeDuplicates();
    }
}

// The outermost and every inner ".app" bundle an executable lies in.
QStringList bundlesAround(const QString& executable)
{
    QStringList bundles;
    qsizetype from = 0;
    for (;;) {
        const qsizetype at = executable.indexOf(QLatin1String(".app/"), from);
        if (at < 0)
            return bundles;
        bundles.append(executable.left(at + 4));
        from = at + 5;
    }
}

}  // namespace

std::optional<AppsScanner::App> AppsScanner::readApp(const QString& bundle)
{
    const auto info = PropertyList::read(bundle + QStringLiteral("/Contents/Info.plist"));
    if (!info)
        return std::nullopt;
    const QString identifier = info->string(QStringLiteral("CFBundleIdentifier")).value_or(QString()).trimmed();
    if (identifier.isEmpty())
        return std::nullopt;
    App app;
    app.path = bundle;
    app.bundleID = identifier;
    app.name = info->string(QStringLiteral("CFBundleDisplayName")).value_or(QString()).trimmed();
    if (app.name.isEmpty()) {
        app.name = bundle.section(QLatin1Char('/'), -1);
        app.name.chop(app.name.size() - app.name.lastIndexOf(QLatin1Char('.')));
    }
    app.version = info->string(QStringLiteral("CFBundleShortVersionString"));
    app.executable = info->string(QStringLiteral("CFBundleExecutable")).value_or(QString());
    return app;
}

QList<AppsScanner::App> AppsScanner::installedApps(const AppFolders& folders, const QString& home, bool everything)
{
    QList<App> apps;
    for (const QString& folder : folders.forUninstaller(home, everything))
        apps += appsIn(folder);
    apps.removeIf([](const App& app) { return app.bundleID == ownBundleID; });
    return apps;
}

QList<AppsScanner::App> AppsScanner::appsIn(const QString& folder)
{
    QList<App> apps;
    addAppsIn(folder, true, apps);
    return apps;
}

QStringList AppsScanner::nestedCode(const QString& bundle, int depth)
{
    return nestedCode(bundle, nestedFolders, depth);
}

QStringList AppsScanner::nestedCode(const QString& bundle, const QStringList& subfolders, int depth)
{
    QStringList identifiers;
    for (const QString& sub : subfolders)
        addNestedIn(bundle + QStringLiteral("/Contents/") + sub, depth, identifiers);
    return identifiers;
}

QStringList AppsScanner::appGroups(const QString& bundle, const std::optional<QString>& codesign)
{
    if (!codesign)
        return {};
    const ProcessRunner::Result result = ProcessRunner::run(
        *codesign, {QStringLiteral("-d"), QStringLiteral("--entitlements"), QStringLiteral("-"), QStringLiteral("--xml"), bundle},
        std::chrono::seconds(20));
    if (!result.launched() || result.output->timedOut || result.output->status != 0)
        return {};
    return groupsInEntitlements(result.output->standardOutput.toUtf8());
}

QStringList AppsScanner::groupsInEntitlements(const QByteArray& output)
{
    // Older codesign versions put an 8-byte blob header before the property list.
    const qsizetype start = output.indexOf("<?xml");
    const auto entitlements = PropertyList::parse(start > 0 ? output.mid(start) : output);
    return entitlements ? entitlements->strings(applicationGroupsKey) : QStringList();
}

QSet<QString> AppsScanner::runningIdentifiers(const QStringList& executables)
{
    QHash<QString, QString> identifierOfBundle;
    QSet<QString> running;
    for (const QString& executable : executables) {
        for (const QString& bundle : bundlesAround(executable)) {
            if (!identifierOfBundle.contains(bundle)) {
                const auto app = readApp(bundle);
                identifierOfBundle.insert(bundle, app ? app->bundleID.toLower() : QString());
            }
            if (!identifierOfBundle.value(bundle).isEmpty())
                running.insert(identifierOfBundle.value(bundle));
        }
    }
    return running;
}

std::optional<QString> AppsScanner::standardCodesign()
{
    if (Platform::desktop() != Platform::Desktop::finder)
        return std::nullopt;  // no code signatures to read
    return QStringLiteral("/usr/bin/codesign");
}

QString AppsScanner::usageProbe(const App& app)
{
    if (Platform::desktop() == Platform::Desktop::finder || app.executable.isEmpty() || app.executable.contains(QLatin1Char('/')))
        return app.path;
    return app.path + QStringLiteral("/Contents/MacOS/") + app.executable;
}

QStringList AppsScanner::defaultRunningExecutables()
{
    return Platform::runningExecutables();
}
