// The storage analysis of AppModel: one at a time, a new one replacing the old, the report kept
// until the next.
#include "model/AppModel.h"
#include "model/HistoryRecorder.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "model/StorageItem.h"
#include "model/StorageTask.h"

#include <QFileInfo>

void AppModel::startStorageAnalysis()
{
    stopStorageAnalysis();
    if (!m_isScanning)
        m_progress->reset();  // a full scan shares its progress with the analysis
    StorageAnalyzer::Request request;
    request.home = m_settings->home();
    request.fullDiskAccess = m_systemState.fullDiskAccess;
    request.progress = m_progress;
    request.diskUsed = [read = m_services.diskUsed, home = request.home] { return read(home); };
    const quint64 generation = ++m_storageGeneration;
    m_storageTasks[generation] = std::make_unique<StorageTask>(
        std::move(request), m_services.analyzeStorage, this,
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
    if (report) {
        m_storageReport = report;
        m_storageOutdated = false;
        m_storageGone.clear();
        m_stats->recordStorage(*report);
        m_history->recordStorage(*report, m_settings->home());
    }
    emit storageChanged();
}

void AppModel::markStorageOutdated()
{
    if (!m_storageReport || m_storageOutdated)
        return;
    m_storageOutdated = true;
    emit storageChanged();
}

void AppModel::noteStorageGone(const QStringList& paths)
{
    if (!m_storageReport || paths.isEmpty())
        return;
    m_storageGone.append(paths);
    emit storageChanged();
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
