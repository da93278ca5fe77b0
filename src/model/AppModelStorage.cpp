// The storage analysis of AppModel: one at a time, a new one replacing the old, the report kept
// until the next.
#include "model/AppModel.h"
#include "model/HistoryRecorder.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "model/StorageItem.h"
#include "model/StorageTask.h"
#include "storage/FolderSplice.h"
#include "vocabulary/SystemPlaces.h"

#include <QFileInfo>

namespace {

StorageAnalyzer::Request requestFor(const QString& home, bool fullDiskAccess, std::shared_ptr<ScanProgress> progress,
                                    const std::function<std::optional<qint64>(const QString&)>& diskUsed)
{
    StorageAnalyzer::Request request;
    request.home = home;
    request.fullDiskAccess = fullDiskAccess;
    request.progress = std::move(progress);
    request.diskUsed = [diskUsed, home] { return diskUsed(home); };
    return request;
}

// A folder's entries, guessed from its files at the home's ratio of entries to files.
std::optional<qint64> expectedEntries(const StorageReport& report, const QString& home, const QString& folder, bool scanning)
{
    const FolderNode* node = report.tree.find(FolderSplice::namesOf(report, home, folder));
    if (scanning || !node || report.entries <= 0 || report.tree.fileCount <= 0)
        return std::nullopt;
    return std::max<qint64>(1, qint64(double(node->fileCount) * double(report.entries) / double(report.tree.fileCount)));
}

}  // namespace

void AppModel::startStorageAnalysis()
{
    stopStorageAnalysis();
    if (!m_isScanning)
        m_progress->reset();  // a full scan shares its progress with the analysis
    std::optional<qint64> expected;
    if (!m_isScanning && m_storageReport && m_storageReport->entries > 0)
        expected = m_storageReport->entries;
    startStorageTask(requestFor(m_settings->home(), m_systemState.fullDiskAccess, m_progress, m_services.diskUsed),
                     m_services.analyzeStorage, {}, expected);
}

bool AppModel::storageKeepsFolder(const QString& path) const
{
    return m_storageReport && !FolderSplice::namesOf(*m_storageReport, m_settings->home(), path).isEmpty();
}

bool AppModel::canRemeasureFolder(const QString& path) const
{
    return !isAnalyzingStorage() && storageKeepsFolder(path);
}

void AppModel::remeasureFolder(const QString& path)
{
    if (!canRemeasureFolder(path))
        return;
    if (!m_isScanning)
        m_progress->reset();
    startStorageTask(requestFor(m_settings->home(), m_storageReport->measuredWithFullDiskAccess, m_progress, m_services.diskUsed),
                     [remeasure = m_services.remeasureStorage, report = *m_storageReport, path](const StorageAnalyzer::Request& request) {
                         return remeasure(request, report, path);
                     },
                     path, expectedEntries(*m_storageReport, m_settings->home(), path, m_isScanning));
}

void AppModel::startStorageTask(StorageAnalyzer::Request request,
                                std::function<std::optional<StorageReport>(const StorageAnalyzer::Request&)> analyze,
                                const QString& folder, std::optional<qint64> expected)
{
    const quint64 generation = ++m_storageGeneration;
    m_storageFolder = folder;
    m_storageExpected = expected;
    m_storageTasks[generation] = std::make_unique<StorageTask>(
        std::move(request), std::move(analyze), this,
        [this, generation](const std::optional<StorageReport>& report) { storageFinished(generation, report); });
    emit storageChanged();
}

// A stopped analysis stays in m_storageTasks until its thread has reported back, so the GUI
// thread never waits for a walk to notice the stop.
void AppModel::stopStorageAnalysis()
{
    const auto current = m_storageTasks.find(m_storageGeneration);
    if (current == m_storageTasks.end() || current->second->isCancelled())
        return;
    current->second->cancel();
    emit storageChanged();
}

bool AppModel::isAnalyzingStorage() const
{
    const auto current = m_storageTasks.find(m_storageGeneration);
    return current != m_storageTasks.end() && !current->second->isCancelled();
}

void AppModel::storageFinished(quint64 generation, const std::optional<StorageReport>& report)
{
    const bool current = generation == m_storageGeneration && isAnalyzingStorage();
    m_storageTasks.erase(generation);  // its thread has handed the report over and is returning
    if (!current)
        return;
    const QString folder = std::exchange(m_storageFolder, QString());
    if (report) {
        m_storageReport = report;
        if (!folder.isEmpty()) {
            // A folder measured again is part of the old report: only its own changes are covered,
            // and the history keeps whole measurements only.
            m_storageStaleness.measuredAgain(folder);
        } else {
            m_storageStaleness.clear();
            m_stats->recordStorage(*report);
            m_history->recordStorage(*report, m_settings->home());
        }
    }
    emit storageChanged();
}

void AppModel::noteStorageChange(const CleanupItem& item)
{
    if (!m_storageReport)
        return;
    const QStringList paths = item.removal.paths();
    m_storageStaleness.noteGone(paths);
    if (!paths.isEmpty())
        m_storageStaleness.noteGrown(SystemPlaces::trashFolder(m_settings->home()));
}

CleanupItem AppModel::storageItem(const QString& path, qint64 bytes) const
{
    return StorageItem::make(path, bytes, makeFilter(), m_settings->home(), m_settings->scanRoots());
}

void AppModel::addFolderToSafeList(const QString& path)
{
    addSafeFolder(path);
    //: Toast after a folder was put on the Safe List; %1 is the folder's name
    showToast(tr("“%1” is on the Safe List.").arg(QFileInfo(path).fileName()));
}
