#include "scan/AppCachesScanner.h"

#include "machinery/FileInfo.h"
#include "platform/Platform.h"
#include "scan/AppNames.h"
#include "scan/KnownLocations.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

using AppCache = AppCachesScanner::AppCache;

bool isLinux()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

QStringList sortedChildren(const QString& folder)
{
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    return names;
}

AppCache folderCache(const QString& path, const QString& app, const QString& home)
{
    const QString name = AppNames::name(app);
    return {{{path}, name, PathRules::withTilde(path, home), false}, app, name, std::nullopt, std::nullopt};
}

void addChildren(const QString& caches, const ScanContext& context, QList<AppCache>& found)
{
    const QStringList names = sortedChildren(caches);
    context.progress->addEntries(names.size());
    for (const QString& name : names) {
        if (name.startsWith(QLatin1Char('.')) || KnownLocations::isSyncServiceData(name)
            || KnownLocations::claimedCacheFolders().contains(name))
            continue;
        found.append(folderCache(caches + QLatin1Char('/') + name, name, context.home));
    }
}

void addMailDownloads(const ScanContext& context, QList<AppCache>& found)
{
    const QString path = context.home + QStringLiteral("/Library/Containers/com.apple.mail/Data/Library/Mail Downloads");
    if (!FileStatus::exists(path))
        return;
    //: Row title in the app caches list: copies of attachments Mail made when they were opened
    const QString title = QCoreApplication::translate("AppCachesScanner", "Mail attachment copies");
    //: Detail line of the Mail attachment copies row
    const QString detail = QCoreApplication::translate("AppCachesScanner", "Opened attachments; the messages keep the originals");
    found.append({{{path}, title, detail, false}, QStringLiteral("com.apple.mail"), QStringLiteral("Mail"), std::nullopt,
                  std::nullopt});
}

// A data folder belongs to an uninstalled app when it is one of `leftAlone`, or when its name
// is an identifier that no installed app answers to (where the system lists apps at all).
bool belongsToUninstalledApp(const QString& folder, const QString& name, const QStringList& leftAlone,
                             const AppNames::Directory& installed)
{
    if (leftAlone.contains(folder))
        return true;
    if (installed.isEmpty() || !AppNames::isReverseDNS(name))
        return false;
    QString identifier = name.toLower();
    while (!installed.contains(identifier)) {
        const qsizetype dot = identifier.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0 || !identifier.left(dot).contains(QLatin1Char('.')))
            return true;
        identifier.truncate(dot);
    }
    return false;
}

QStringList editorCachePaths(const QString& home)
{
    QStringList paths;
    for (const Location& location : KnownLocations::editors()) {
        for (const QString& pattern : location.paths)
            paths += LocationScanner::expand(home + QLatin1Char('/') + pattern);
    }
    return paths;
}

bool isAtOrBelowAny(const QString& path, const QStringList& folders)
{
    return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) { return PathRules::isAtOrBelow(path, folder); });
}

QString webCacheDetail(const QString& dataFolder, const QString& name)
{
    if (dataFolder.endsWith(QLatin1String("/.config")))
        //: Detail line of an app's web caches row on Linux; %1 is the app's folder in ~/.config
        return QCoreApplication::translate("AppCachesScanner", "Web caches in ~/.config/%1").arg(name);
    //: Detail line of an app's web caches row; %1 is the app's folder in Application Support
    return QCoreApplication::translate("AppCachesScanner", "Web caches in ~/Library/Application Support/%1").arg(name);
}

bool isOnSafeList(const QStringList& paths, const ScanContext& context)
{
    for (const QString& path : paths) {
        for (const QString& folder : context.safeFolders) {
            if (PathRules::isAtOrBelow(path, folder))
                return true;
        }
    }
    return false;
}

// Measures the caches into rows with their own ids and badges, locked while their app runs.
QList<CleanupItem> measured(const QList<AppCache>& caches, const ScanContext& context, const RunningApps& running,
                            int& unreadable)
{
    QList<LocationScanner::Candidate> candidates;
    QHash<QString, const AppCache*> byPath;  // a row's first path is any of its candidate's, if one vanished
    for (const AppCache& cache : caches) {
        if (isOnSafeList(cache.candidate.paths, context))
            continue;
        candidates.append(cache.candidate);
        for (const QString& path : cache.candidate.paths)
            byPath.insert(path, &cache);
    }
    QList<CleanupItem> rows = LocationScanner::measure(candidates, CategoryID::appCaches, context, &unreadable);
    for (CleanupItem& row : rows) {
        const AppCache* cache = byPath.value(row.removal.paths().value(0));
        if (!cache)
            continue;
        row.id = cache->id.value_or(row.id);
        row.badge = cache->badge;
        if (running.isRunning(cache->app))
            row.lockedReason = RunningApps::quitToCleanCaches(cache->appName);
    }
    running.lockRowsOfRunningOwners(rows, context.home, &RunningApps::quitToCleanCaches);
    return rows;
}

}  // namespace

ScanOutputs AppCachesScanner::scan(const ScanContext& context) const
{
    const RunningApps running = RunningApps::from(context.runningPrograms->list());
    int unreadable = 0;
    ScanOutput output;
    output.items = measured(cacheFolders(context) + containerCaches(context), context, running, unreadable);
    const QStringList uninstalled = AgentsScanner::uninstalledAppSupportFolders(context.home, m_environment);
    output.items += measured(webCachesInsideAppData(context, uninstalled), context, running, unreadable);
    if (unreadable > 0)
        output.notes.append(LocationScanner::unreadableNote());
    return {{CategoryID::appCaches, output}};
}

QString AppCachesScanner::appID(const QString& groupContainer)
{
    const QString prefix = QStringLiteral("group.");
    return groupContainer.startsWith(prefix) ? groupContainer.mid(prefix.size()) : groupContainer;
}

const QStringList& AppCachesScanner::webCacheFolders()
{
    static const QStringList folders = {
        QStringLiteral("Cache/Cache_Data"), QStringLiteral("Code Cache"), QStringLiteral("GPUCache"),
        QStringLiteral("DawnCache"), QStringLiteral("DawnGraphiteCache"), QStringLiteral("DawnWebGPUCache"),
        QStringLiteral("GraphiteDawnCache"), QStringLiteral("GrShaderCache"), QStringLiteral("ShaderCache"),
        QStringLiteral("Service Worker/CacheStorage"), QStringLiteral("Service Worker/ScriptCache"),
    };
    return folders;
}

QList<AppCache> AppCachesScanner::cacheFolders(const ScanContext& context)
{
    QList<AppCache> found;
    addChildren(context.home + QStringLiteral("/Library/Caches"), context, found);
    if (isLinux())
        addChildren(context.home + QStringLiteral("/.cache"), context, found);
    addMailDownloads(context, found);
    return found;
}

QList<AppCache> AppCachesScanner::containerCaches(const ScanContext& context)
{
    QList<AppCache> found;
    const QString containers = context.home + QStringLiteral("/Library/Containers");
    for (const QString& name : sortedChildren(containers)) {
        const QString caches = containers + QLatin1Char('/') + name + QStringLiteral("/Data/Library/Caches");
        if (!KnownLocations::isSyncServiceData(name) && FileStatus::isFolder(caches))
            found.append(folderCache(caches, name, context.home));
    }
    const QString groups = context.home + QStringLiteral("/Library/Group Containers");
    for (const QString& name : sortedChildren(groups)) {
        const QString caches = groups + QLatin1Char('/') + name + QStringLiteral("/Library/Caches");
        if (!KnownLocations::isSyncServiceData(name) && FileStatus::isFolder(caches))
            found.append(folderCache(caches, appID(name), context.home));
    }
    return found;
}

QList<AppCache> AppCachesScanner::webCachesInsideAppData(const ScanContext& context, const QStringList& leftAlone)
{
    QStringList dataFolders = {context.home + QStringLiteral("/Library/Application Support")};
    if (isLinux())
        dataFolders.append(context.home + QStringLiteral("/.config"));
    const AppNames::Directory installed = AppNames::read(AppNames::applicationFolders(context.home));
    const QStringList editorCaches = editorCachePaths(context.home);
    QList<AppCache> found;
    for (const QString& data : dataFolders) {
        for (const QString& name : sortedChildren(data)) {
            const QString folder = data + QLatin1Char('/') + name;
            if (name.startsWith(QLatin1String("com.apple.")) || belongsToUninstalledApp(folder, name, leftAlone, installed))
                continue;
            QStringList paths;
            for (const QString& cache : webCacheFolders()) {
                const QString path = folder + QLatin1Char('/') + cache;
                if (FileStatus::isFolder(path) && !isAtOrBelowAny(path, editorCaches))
                    paths.append(path);
            }
            if (paths.isEmpty())
                continue;
            const QString appName = AppNames::name(name, installed);
            //: Badge of a row of web caches found inside an app's data folder
            const QString badge = QCoreApplication::translate("AppCachesScanner", "Inside app data");
            found.append({{paths, appName, webCacheDetail(data, name), false}, name, appName,
                          folder + QStringLiteral("#webcache"), badge});
        }
    }
    return found;
}
