#pragma once

#include "actions/FreedesktopTrash.h"
#include "actions/Mover.h"
#include "model/CleanupLock.h"
#include "model/CleanupSession.h"
#include "model/MoveSession.h"
#include "model/ScanTask.h"
#include "model/Selection.h"
#include "model/StorageStaleness.h"
#include "model/TrashState.h"
#include "model/UpdateState.h"
#include "storage/StorageAnalyzer.h"
#include "update/ImageInstall.h"
#include "update/UpdateChecker.h"
#include "update/Updater.h"
#include "vocabulary/CategoryResult.h"
#include "vocabulary/ScanFilter.h"
#include "vocabulary/SizeFilter.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QUuid>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <thread>

class SettingsStore;
class StatsStore;
class StorageTask;

// The one owner of what the screens show: per-category results, the selection, the running
// scan and rescans, and the system figures. Screens read its parts (Selection, TrashState,
// UpdateState, the sessions) and change them only through it. Scanners run on worker threads and
// hand their outputs back with queued calls; everything here is read and written on the GUI
// thread only, and nothing on a worker reads the stores: work gets the facts it needs as values.
class HistoryRecorder;

class AppModel : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppModel)

public:
    struct SystemState {
        std::optional<qint64> freeBytes;
        std::optional<qint64> totalBytes;
        bool fullDiskAccess = true;
    };

    // What the model reaches outside the process through; tests replace parts of it.
    struct Services {
        std::function<std::vector<std::shared_ptr<const Scanner>>()> scanners;
        std::function<SystemState(const QString& home)> readSystemState;  // runs on a worker
        std::function<QDateTime()> now;
        // Removes one item for good or to the Trash in the environment the cleanup was prepared
        // with; runs on the cleanup's worker thread.
        std::function<CleanupSession::Outcome(const CleanupItem&, const RemovalEnvironment&)> removeItem;
        // The lock file a cleanup holds while it removes, so the report tool's cleanup and this
        // one never remove at once.
        QString cleanupLockPath;
        // Empties the Trash, reporting items removed of the total where the system tells and
        // stopping between items once the token is cancelled; the message to show when it ended
        // early. Runs on a worker thread.
        std::function<std::optional<QString>(const FreedesktopTrash::EmptyProgress&, const CancellationToken&)> emptyTrash;
        // The storage analysis; absent when cancelled. Runs on the analysis's worker thread.
        std::function<std::optional<StorageReport>(const StorageAnalyzer::Request&)> analyzeStorage;
        // One folder of a report measured again and put in its place (`StorageAnalyzer::remeasure`);
        // absent when cancelled. Runs on the analysis's worker thread.
        std::function<std::optional<StorageReport>(const StorageAnalyzer::Request&, const StorageReport&, const QString&)>
            remeasureStorage;
        // Bytes in use on the home's volume; absent when unknown. Runs on a worker thread.
        std::function<std::optional<qint64>(const QString& home)> diskUsed;
        // Moves one item to another disk in the environment the move started with (its
        // cancellation is the Stop button); runs on the move's worker thread.
        std::function<Mover::Outcome(const CleanupItem&, const QString& destination, const Mover::Progress&,
                                     const Mover::Environment&)> moveItem;
        // Where the update check asks; tests point it at a local server.
        UpdateSite updateSite;
        // The running ".app" folder an update replaces; empty where the app is no bundle.
        QString runningApp;
        ImageInstall::Tools updateTools;
        // Asks the system to start the app at the path and quits this one; false when it couldn't be
        // asked. Whether the new copy then runs is not known by the time this answers.
        std::function<bool(const QString& appPath)> relaunch;
        // The scan history's file; empty records nothing.
        QString historyFile;
    };
    static Services defaultServices();

    AppModel(SettingsStore* settings, StatsStore* stats, Services services = defaultServices(),
             QObject* parent = nullptr);
    ~AppModel() override;

    SettingsStore* settings() const { return m_settings; }
    StatsStore* stats() const { return m_stats; }
    HistoryRecorder* history() const { return m_history; }

    // --- Scanning
    void startScan();
    void stopScan();
    void rescan(CategoryID category);
    bool isScanning() const { return m_isScanning; }
    bool hasScanned() const { return m_hasScanned; }
    bool isBusyScanning() const;
    bool isCategoryScanning(CategoryID category) const;
    ScanContext makeContext() const;
    void refreshSystemState();
    // Folds scanner outputs into the results, dropping what the person protected.
    void apply(const ScanOutputs& outputs, bool stopped);
    // The same, reusing the rows filtered on the scanner's thread while the filter is unchanged.
    void apply(const FilteredOutputs& outputs, bool stopped);
    CategoryResult result(CategoryID category) const;
    std::shared_ptr<ScanProgress> progress() const { return m_progress; }
    const SystemState& systemState() const { return m_systemState; }
    // The model's clock: the system's, or a test's.
    QDateTime now() const { return m_services.now(); }
    // When a scanner last filled the category's list; absent before.
    std::optional<QDateTime> scannedAt(CategoryID category) const;
    static constexpr int clockInterval = 30'000;  // milliseconds

    // --- Storage (AppModelStorage.cpp)
    // Starts an analysis of the home, replacing one that runs; a full scan starts one too.
    void startStorageAnalysis();
    void stopStorageAnalysis();
    bool isAnalyzingStorage() const;
    // The last finished analysis; kept until the next one finishes.
    const std::optional<StorageReport>& storageReport() const { return m_storageReport; }
    // Measures one folder of the report again on a worker thread and puts it in place (the tree,
    // the lists, the totals); the report keeps its date. Only where `canRemeasureFolder`.
    void remeasureFolder(const QString& path);
    // Whether the report keeps that folder apart, so it can be measured again alone.
    bool storageKeepsFolder(const QString& path) const;
    // Whether it keeps the folder and no analysis runs.
    bool canRemeasureFolder(const QString& path) const;
    // The folder being measured again; empty while the whole home is (or nothing is) measured.
    const QString& storageFolderMeasured() const { return m_storageFolder; }
    // About how many entries the running analysis will look at, from the last report; absent
    // when there is no fair guess (no report yet, or a full scan shares the count).
    std::optional<qint64> storageEntriesExpected() const { return m_storageExpected; }
    // Whether a cleanup or a move changed the disk, in a place not measured again since, after
    // the last report was measured.
    bool isStorageOutdated() const { return m_storageStaleness.isOutdated(); }
    // Puts a folder on the Safe List: nothing inside it is shown by scans any more; a toast says so.
    void addFolderToSafeList(const QString& path);
    // A folder or file of the storage screens, measured at `bytes`, as the item a cleanup
    // (prepareRemoval) or a move takes; locked with the reason where those must not touch it.
    CleanupItem storageItem(const QString& path, qint64 bytes) const;
    // What cleanups and moves have taken away since the report was measured, so its rows can say so.
    const QStringList& storageGone() const { return m_storageStaleness.gone(); }

    // --- Selection (AppModelSelection.cpp)
    const Selection& selection() const { return m_selection; }
    void setSelected(const CleanupItem& item, bool selected);
    void setAll(const QList<CleanupItem>& items, bool selected);
    void clearSelection();
    QList<CleanupItem> selectedItems() const;
    qint64 selectedSize() const;
    qint64 selectedSize(const QList<CategoryID>& categories) const;
    // The rows of a category that pass the size filter and the search text, in list order.
    QList<CleanupItem> visibleItems(CategoryID category, const QString& search = {}) const;
    SizeFilter sizeFilter() const;
    void setSizeFilter(SizeFilter filter);

    // --- Safe List (AppModelSafeList.cpp)
    void addToSafeList(const CleanupItem& item);
    void removeFromSafeList(const QString& id);
    // A folder added on the Safe List screen: what it holds leaves the lists at once.
    void addSafeFolder(const QString& path);
    void removeSafeFolder(const QString& path);
    const QString& toast() const { return m_toast; }
    void showToast(const QString& text);

    // --- Cleanup
    CleanupSession* cleanup() const { return m_cleanup.get(); }
    CleanupSession* lastRunCleanup() const { return m_lastRunCleanup.get(); }
    // Opens a session over the selection, leaving out items another selected item removes.
    void prepareCleanup();
    // Opens a session over the one item, as for the selection; a locked item opens none and a
    // toast gives its reason.
    void prepareRemoval(const CleanupItem& item);
    // No scan runs and no cleanup or move is open, so a cleanup may be prepared.
    bool canPrepareCleanup() const;
    // Starts the confirmed session; while another cleanup removes files (the report tool's), it
    // stays unconfirmed and a toast says why.
    void startCleanup();
    void stopCleanup();
    // Closes the sheet: a finished session stays readable as lastRunCleanup.
    void closeCleanup();
    void removeFromResults(const CleanupItem& item);
    // A cleanup runs, a move copies or the Trash is being emptied.
    bool isChangingFiles() const;
    // Stops what changes files and calls `then` once it has ended (at once when nothing runs).
    void stopForQuit(std::function<void()> then);
    void emptyTrash();
    // Ends the running emptying after the item being removed.
    void stopEmptyingTrash();
    // Measures the Trash row again; one asked for while it is being measured follows that one.
    void refreshTrash();
    const TrashState& trashState() const { return m_trash; }

    // --- Move to another disk (AppModelMove.cpp)
    MoveSession* moveSession() const { return m_move.get(); }
    // Opens a session and starts moving `item` into `destination`; false, doing nothing, while
    // a scan runs or a cleanup or another move is open.
    bool startMove(const CleanupItem& item, const QString& destination);
    void stopMove();
    // Closes an ended move's session.
    void closeMove();
    // Answers `answer` on the GUI thread, unless `context` is gone by then, with the sentence
    // that refuses `destination` for `item`, or nothing. The disk is read on a worker thread.
    void checkMoveDestination(const CleanupItem& item, const QString& destination, QObject* context,
                              std::function<void(std::optional<QString>)> answer);
    // --- Updates
    // Asks the maker's site for a newer build; does nothing while a check runs. The answer
    // arrives later as updateState().result with updateStateChanged().
    void checkForUpdates();
    const UpdateState& updateState() const { return m_updates; }
    // The page that describes `release`, safe to open.
    QUrl releasePage(const UpdateChecker::Release& release) const;
    // Whether this copy may replace itself with an available release (never on Linux).
    bool canInstallUpdate() const;
    // Downloads, checks and installs the available release, then relaunches and quits. A
    // failure's sentence becomes updateState().installError; the running copy is then unchanged.
    void installUpdate();
    // The ".app" folder this program runs from; empty when it isn't in one.
    static QString runningAppBundle();

signals:
    void resultsChanged(CategoryID category);
    void cleanupChanged();
    void trashChanged();
    void scanStateChanged();
    void selectionChanged();
    void systemStateChanged();
    void toastChanged(const QString& text);
    void storageChanged();
    void moveChanged();
    void updateStateChanged();
    // Every `clockInterval`: relative dates on screen ("5 minutes ago") are drawn again from `now()`.
    void clockTicked();

private:
    struct RunningScan {
        std::unique_ptr<ScanTask> task;
        size_t outputsLeft = 0;
        QDateTime started;
    };

    ScanFilter makeFilter() const;
    std::unique_ptr<ScanTask> makeTask(std::vector<std::shared_ptr<const Scanner>> scanners, const QUuid& id);
    void outputArrived(const QUuid& id, const FilteredOutputs& outputs);
    void finishScan(const QUuid& id);
    void markUnfinishedDone(const QList<CategoryID>& categories, bool stopped);
    void setState(CategoryID category, CategoryResult::State state);
    bool removeItemsWhere(const std::function<bool(const CleanupItem&)>& predicate);
    void removeSafeItemsFromResults();
    void indexDuplicates();
    // Makes the category's list facts again after its rows changed on this thread.
    void remakeFacts(CategoryID category);
    void removeLoneCopies();

    SettingsStore* m_settings;
    QTimer m_clock;
    std::map<CategoryID, QDateTime> m_scannedAt;
    StatsStore* m_stats;
    HistoryRecorder* m_history = nullptr;  // a child
    Services m_services;
    std::map<CategoryID, CategoryResult> m_results;
    bool m_isScanning = false;
    bool m_hasScanned = false;
    Selection m_selection;
    std::shared_ptr<ScanProgress> m_progress = std::make_shared<ScanProgress>();
    QUuid m_fullScanId;                                  // null when no full scan runs
    std::map<QUuid, RunningScan> m_scans;                // the full scan and every rescan
    void runCleanup(CleanupSession* session, QList<CleanupItem> items, QList<CleanupItem> copies, QString home);
    void finishCleanup(std::optional<qint64> freeAfter);
    void joinCleanupThread();
    void trashEmptied(const std::optional<QString>& failure);
    void trashProgress(int removed, int total);
    void remeasureFreeAfter();
    // rescan() without waiting for an ended move's sheet to close, for categories a move can't touch.
    void startRescan(CategoryID category);

    void startStorageTask(StorageAnalyzer::Request request,
                          std::function<std::optional<StorageReport>(const StorageAnalyzer::Request&)> analyze,
                          const QString& folder, std::optional<qint64> expected);
    void storageFinished(quint64 generation, const std::optional<StorageReport>& report);
    void openCleanup(QList<CleanupItem> items);
    // Marks the report out of date where an item went from and, for a move to the Trash, the
    // home's Trash; an item without paths (a tool's removal) leaves it out of date anywhere.
    void noteStorageChange(const CleanupItem& item);

    std::map<quint64, std::unique_ptr<StorageTask>> m_storageTasks;  // the current one and stopped ones
    quint64 m_storageGeneration = 0;                                  // the current one's key
    std::optional<StorageReport> m_storageReport;
    StorageStaleness m_storageStaleness;
    QString m_storageFolder;  // the folder the running task measures again, empty for the home
    std::optional<qint64> m_storageExpected;
    SystemState m_systemState;
    QString m_toast;
    std::unique_ptr<CleanupSession> m_cleanup;
    std::unique_ptr<CleanupSession> m_lastRunCleanup;
    std::thread m_cleanupThread;
    std::optional<CleanupLock> m_cleanupLock;  // held while the session runs
    std::function<void()> m_quitCompletion;
    TrashState m_trash;
    CancellationToken m_trashStop;    // the running emptying's; a new one for each
    bool m_trashRefreshPending = false;

    void finishMove(const Mover::Outcome& outcome);
    void joinMoveThread();
    // Calls the quit completion once neither a cleanup nor a move changes files.
    void finishQuitWhenIdle();
    std::unique_ptr<MoveSession> m_move;
    std::thread m_moveThread;
    void installDownloaded(const Updater::Download& download, const UpdateChecker::Release& release);
    void finishInstall(const std::optional<QString>& error);
    UpdateState m_updates;
};
