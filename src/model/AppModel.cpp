#include "model/AppModel.h"

#include "actions/DiskSpace.h"
#include "actions/Remover.h"
#include "actions/SystemAccess.h"
#include "machinery/Background.h"
#include "model/SettingsStore.h"
#include "history/HistoryStore.h"
#include "model/HistoryRecorder.h"
#include "model/StatsStore.h"
#include "model/StorageTask.h"
#include "platform/Platform.h"
#include "scan/ScannerCatalog.h"

#include <QCoreApplication>
#include <QProcess>

AppModel::Services AppModel::defaultServices()
{
    Services services;
    services.scanners = [] { return ScannerCatalog::all(); };
    services.readSystemState = [](const QString& home) {
        SystemState state;
        if (const auto disk = DiskSpace::current(home)) {
            state.freeBytes = disk->available;
            state.totalBytes = disk->total;
        }
        state.fullDiskAccess = SystemAccess::hasFullDiskAccess(home);
        return state;
    };
    services.now = [] { return QDateTime::currentDateTimeUtc(); };
    services.historyFile = HistoryStore::defaultPath();
    services.removeItem = [](const CleanupItem& item, const RemovalEnvironment& environment) {
        return Remover::remove(item, environment);
    };
    services.cleanupLockPath = CleanupLock::defaultPath();
    services.emptyTrash = [](const FreedesktopTrash::EmptyProgress& progress, const CancellationToken& stop) {
        return SystemAccess::emptyTrash(progress, &stop);
    };
    services.moveItem = [](const CleanupItem& item, const QString& destination, const Mover::Progress& progress,
                           const Mover::Environment& environment) {
        return Mover::move(item, destination, progress, environment);
    };
    services.analyzeStorage = [](const StorageAnalyzer::Request& request) { return StorageAnalyzer::analyze(request); };
    services.remeasureStorage = [](const StorageAnalyzer::Request& request, const StorageReport& report, const QString& folder) {
        return StorageAnalyzer::remeasure(request, report, folder);
    };
    services.diskUsed = [](const QString& home) -> std::optional<qint64> {
        const auto disk = DiskSpace::current(home);
        return disk ? std::optional<qint64>(disk->total - disk->available) : std::nullopt;
    };
    services.runningApp = runningAppBundle();
    // `open -n` answers as soon as LaunchServices took the request, before the new copy runs or
    // fails to: true means the start was asked for, not that it happened.
    services.relaunch = [](const QString& appPath) {
        if (!QProcess::startDetached(QStringLiteral("/usr/bin/open"), {QStringLiteral("-n"), appPath}))
            return false;
        QCoreApplication::quit();
        return true;
    };
    return services;
}

AppModel::AppModel(SettingsStore* settings, StatsStore* stats, Services services, QObject* parent)
    : QObject(parent), m_settings(settings), m_stats(stats), m_services(std::move(services))
{
    m_history = new HistoryRecorder(m_services.historyFile, this);
    m_history->refresh();
    // One clock for every screen's relative dates, so none keeps a timer of its own.
    m_clock.setInterval(clockInterval);
    connect(&m_clock, &QTimer::timeout, this, &AppModel::clockTicked);
    m_clock.start();
}

std::optional<QDateTime> AppModel::scannedAt(CategoryID category) const
{
    const auto found = m_scannedAt.find(category);
    return found == m_scannedAt.end() ? std::nullopt : std::optional<QDateTime>(found->second);
}

// Cancels every running scan; each ScanTask waits for its threads as it is destroyed.
AppModel::~AppModel()
{
    for (auto& [id, scan] : m_scans)
        scan.task->cancel();
    for (auto& [generation, task] : m_storageTasks)
        task->cancel();
    stopCleanup();
    joinCleanupThread();
    stopMove();
    joinMoveThread();
    m_trashStop.cancel();
}

bool AppModel::isBusyScanning() const
{
    if (m_isScanning)
        return true;
    for (const auto& [category, result] : m_results) {
        if (result.state == CategoryResult::State::scanning)
            return true;
    }
    return false;
}

bool AppModel::isCategoryScanning(CategoryID category) const
{
    return result(category).state == CategoryResult::State::scanning;
}

CategoryResult AppModel::result(CategoryID category) const
{
    const auto found = m_results.find(category);
    return found == m_results.end() ? CategoryResult{} : found->second;
}

ScanContext AppModel::makeContext() const
{
    ScanContext context;
    context.home = m_settings->home();
    context.roots = m_settings->scanRoots();
    context.progress = m_progress;
    context.now = m_services.now();
    context.fullDiskAccess = m_systemState.fullDiskAccess;
    const QStringList& folders = m_settings->safeFolders();
    context.safeFolders = QSet<QString>(folders.begin(), folders.end());
    return context;
}

ScanFilter AppModel::makeFilter() const
{
    const QStringList& ids = m_settings->safeItems();
    return ScanFilter(m_settings->home(), QSet<QString>(ids.begin(), ids.end()), m_settings->protectedPaths());
}

std::unique_ptr<ScanTask> AppModel::makeTask(std::vector<std::shared_ptr<const Scanner>> scanners, const QUuid& id)
{
    return std::make_unique<ScanTask>(std::move(scanners), makeContext(), makeFilter(), this,
                                      [this, id](const FilteredOutputs& outputs) { outputArrived(id, outputs); });
}

void AppModel::startScan()
{
    // A scan replaces every list, so it waits until no cleanup or move sheet is open.
    if (isBusyScanning() || m_cleanup || m_move)
        return;
    const QUuid id = QUuid::createUuid();
    RunningScan scan{makeTask(m_services.scanners(), id), 0, m_services.now()};
    scan.outputsLeft = scan.task->scannerCount();
    m_progress->reset();
    startStorageAnalysis();
    clearSelection();
    m_results.clear();
    indexDuplicates();  // the old list's groups go with it
    for (CategoryID category : Categories::allCases())
        m_results[category].state = CategoryResult::State::scanning;
    m_isScanning = true;
    m_fullScanId = id;
    ScanTask* task = scan.task.get();
    m_scans.emplace(id, std::move(scan));
    for (CategoryID category : Categories::allCases())
        emit resultsChanged(category);
    emit scanStateChanged();
    task->start();
    if (task->scannerCount() == 0)
        finishScan(id);
}

// Stops the storage analysis too: it was started by the scan or walks beside it.
void AppModel::stopScan()
{
    for (auto& [id, scan] : m_scans)
        scan.task->cancel();
    stopStorageAnalysis();
}

void AppModel::rescan(CategoryID category)
{
    if (!m_move)
        startRescan(category);
}

void AppModel::startRescan(CategoryID category)
{
    if (m_isScanning || isCategoryScanning(category) || isChangingFiles())
        return;
    std::vector<std::shared_ptr<const Scanner>> chosen;
    for (const auto& scanner : m_services.scanners()) {
        if (scanner->categories().contains(category))
            chosen.push_back(scanner);
    }
    if (chosen.empty())
        return;
    const QUuid id = QUuid::createUuid();
    RunningScan scan{makeTask(chosen, id), chosen.size(), m_services.now()};
    const QList<CategoryID> refreshed = scan.task->categories();
    ScanTask* task = scan.task.get();
    m_scans.emplace(id, std::move(scan));
    for (CategoryID each : refreshed)
        setState(each, CategoryResult::State::scanning);
    emit scanStateChanged();
    task->start();
}

void AppModel::setState(CategoryID category, CategoryResult::State state)
{
    m_results[category].state = state;
    emit resultsChanged(category);
}

void AppModel::outputArrived(const QUuid& id, const FilteredOutputs& outputs)
{
    const auto found = m_scans.find(id);
    if (found == m_scans.end())
        return;
    for (const auto& [category, output] : outputs.outputs)
        m_scannedAt[category] = found->second.started;
    apply(outputs, found->second.task->isCancelled());
    if (--found->second.outputsLeft == 0)
        finishScan(id);
}

void AppModel::finishScan(const QUuid& id)
{
    const auto found = m_scans.find(id);
    const bool stopped = found->second.task->isCancelled();
    const QDateTime started = found->second.started;
    markUnfinishedDone(found->second.task->categories(), stopped);
    // Destroying the task joins threads that have all returned by now.
    m_scans.erase(found);
    if (id == m_fullScanId) {
        markUnfinishedDone(QList<CategoryID>(Categories::allCases().begin(), Categories::allCases().end()), stopped);
        m_fullScanId = QUuid();
        m_isScanning = false;
        m_hasScanned = true;
        if (!stopped) {
            m_stats->recordScan(started, m_results);
            m_history->recordScan(started, m_results, m_settings->home());
        }
        refreshSystemState();
    }
    emit scanStateChanged();
    if (m_trashRefreshPending)
        refreshTrash();
}

void AppModel::markUnfinishedDone(const QList<CategoryID>& categories, bool stopped)
{
    for (CategoryID category : categories) {
        CategoryResult& entry = m_results[category];
        if (entry.state != CategoryResult::State::scanning)
            continue;
        entry.state = CategoryResult::State::done;
        if (stopped)
            //: Banner of a category whose scanner had not finished when the person stopped the scan
            entry.notes.append(tr("The scan was stopped before this category finished."));
        emit resultsChanged(category);
    }
}

void AppModel::apply(const ScanOutputs& outputs, bool stopped)
{
    apply(FilteredOutputs::unfiltered(outputs, makeFilter(), m_settings->scanRoots()), stopped);
}

void AppModel::apply(const FilteredOutputs& outputs, bool stopped)
{
    const ScanFilter filter = makeFilter();
    const QStringList scanFolders = m_settings->scanRoots();
    for (const auto& [category, output] : outputs.outputs) {
        CategoryResult result;
        result.state = CategoryResult::State::done;
        result.facts = outputs.shownFor(category, filter, scanFolders);
        result.items = result.facts.rows();
        result.notes = output.notes;
        if (stopped)
            //: Banner of a category whose scanner returned early because the scan was stopped
            result.notes.append(tr("The scan was stopped; this list may be incomplete."));
        result.summary = output.summary;
        m_results[category] = std::move(result);
        // The duplicate groups change only with the duplicates list; other lists leave them be.
        if (category == CategoryID::duplicates)
            indexDuplicates();
        emit resultsChanged(category);
    }
    if (outputs.outputs.contains(CategoryID::duplicates))
        removeLoneCopies();
}

void AppModel::refreshSystemState()
{
    Background::run(this, [read = m_services.readSystemState, home = m_settings->home()] { return read(home); },
                    [this](const SystemState& state) {
                        m_systemState = state;
                        emit systemStateChanged();
                    });
}
