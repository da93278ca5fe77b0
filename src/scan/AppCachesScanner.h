#pragma once

#include "scan/AgentsScanner.h"
#include "scan/LocationScanner.h"
#include "scan/Scanner.h"

#include <optional>

// Fills "App Caches": the apps' own cache folders (Library/Caches, Linux's ~/.cache), Mail's
// attachment copies, the sandboxed apps' container caches and the web caches inside apps'
// data folders. Folders another list owns, and the sync state of cloud-file services, are
// skipped; a row is locked while its app runs. A value type; scan() runs on a worker thread.
//
// Web caches inside an app's data folder are the Chromium and Electron caches that every such
// app rebuilds: "Cache/Cache_Data" (the HTTP cache; a bare "Cache" may be the app's own data),
// "Code Cache", "GPUCache", "DawnCache", "DawnGraphiteCache", "DawnWebGPUCache",
// "GraphiteDawnCache", "GrShaderCache", "ShaderCache", "Service Worker/CacheStorage" and
// "Service Worker/ScriptCache". Folders whose name is an identifier no installed app has, and
// the data folders of agents that are not installed, are left to the leftovers and AI agents
// lists.
class AppCachesScanner : public Scanner {
public:
    explicit AppCachesScanner(AgentsScanner::Environment environment = AgentsScanner::standardEnvironment())
        : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::appCaches}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The app a group container belongs to: the identifier without a leading "group.".
    [[nodiscard]] static QString appID(const QString& groupContainer);

    // A candidate with what the running lock needs: the app's identifier or folder name.
    struct AppCache {
        LocationScanner::Candidate candidate;
        QString app;      // bundle identifier, or the folder's own name
        QString appName;  // display name for the lock text
        std::optional<QString> id;     // instead of the first path
        std::optional<QString> badge;
    };
    [[nodiscard]] static QList<AppCache> cacheFolders(const ScanContext& context);
    [[nodiscard]] static QList<AppCache> containerCaches(const ScanContext& context);
    // `leftAlone` are the data folders of apps that are not installed.
    [[nodiscard]] static QList<AppCache> webCachesInsideAppData(const ScanContext& context, const QStringList& leftAlone);

    [[nodiscard]] static const QStringList& webCacheFolders();

private:
    AgentsScanner::Environment m_environment;
};
