// The cleanup session of AppModel: one worker thread removes the items one at a time and
// reports each step back to the GUI thread, where the results and the session change.
#include "machinery/Background.h"
#include "model/AppModel.h"
#include "model/CleanupRun.h"
#include "model/SelectionIndex.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "vocabulary/ItemName.h"

#include <QPointer>

#include <algorithm>
#include <atomic>

void AppModel::prepareCleanup()
{
    openCleanup(SelectionIndex::uncovered(selectedItems()));
}

void AppModel::prepareRemoval(const CleanupItem& item)
{
    if (item.lockedReason)
        showToast(*item.lockedReason);
    else
        openCleanup({item});
}

bool AppModel::canPrepareCleanup() const
{
    return !isBusyScanning() && !m_cleanup && !m_move;
}

void AppModel::openCleanup(QList<CleanupItem> items)
{
    if (!canPrepareCleanup())
        return;
    m_cleanup = std::make_unique<CleanupSession>(std::move(items), RemovalEnvironment::system(m_settings->home(), m_settings->scanRoots()));
    emit cleanupChanged();
}

void AppModel::startCleanup()
{
    if (!m_cleanup || m_cleanup->phase() != CleanupSession::Phase::confirming)
        return;
    QString busy;
    m_cleanupLock = CleanupLock::acquire(m_services.cleanupLockPath, &busy);
    if (!m_cleanupLock) {
        showToast(busy);
        return;
    }
    joinCleanupThread();
    m_cleanup->setPhase(CleanupSession::Phase::running);
    CleanupSession* session = m_cleanup.get();
    // The worker never waits for the GUI thread, so stopping and joining it can't deadlock; it
    // keeps its own account of which duplicates still exist.
    m_cleanupThread = std::thread([this, session, items = session->items(),
                                   copies = result(CategoryID::duplicates).items, home = m_settings->home()] {
        runCleanup(session, items, copies, home);
    });
    emit cleanupChanged();
}

void AppModel::runCleanup(CleanupSession* session, QList<CleanupItem> items, QList<CleanupItem> copies, QString home)
{
    const std::optional<qint64> freeBefore = m_services.readSystemState(home).freeBytes;
    QMetaObject::invokeMethod(this, [session, freeBefore] { session->setFreeBefore(freeBefore); }, Qt::QueuedConnection);
    CleanupRun::Steps steps;
    steps.stopRequested = [session] { return session->stopRequested(); };
    steps.starting = [this, session](const CleanupItem& item) {
        QMetaObject::invokeMethod(this, [session, name = ItemName::of(item, session->environment().home)] { session->setCurrent(name); },
                                  Qt::QueuedConnection);
    };
    steps.finished = [this, session](const CleanupItem& item, const CleanupSession::Outcome& outcome) {
        QMetaObject::invokeMethod(this, [this, session, item, outcome] {
            session->record(item, outcome);
            if (outcome.succeeded()) {
                removeFromResults(item);
                noteStorageChange(item);
            }
            else if (m_selection.remove(item.id))
                emit selectionChanged();  // a row that stays after its failure is not ticked for the next cleanup
        }, Qt::QueuedConnection);
    };
    if (CleanupRun::run(items, std::move(copies), session->environment(), m_services.removeItem, steps))
        QMetaObject::invokeMethod(this, [session] { session->setStopped(); }, Qt::QueuedConnection);
    const std::optional<qint64> freeAfter = m_services.readSystemState(home).freeBytes;
    QMetaObject::invokeMethod(this, [this, freeAfter] { finishCleanup(freeAfter); }, Qt::QueuedConnection);
}

void AppModel::finishCleanup(std::optional<qint64> freeAfter)
{
    CleanupSession* session = m_cleanup.get();
    joinCleanupThread();
    m_cleanupLock.reset();
    session->setFreeAfter(freeAfter);
    m_stats->recordCleanup(session->movedToTrash(), session->removedByTools(), session->removedCount());
    if (session->removedCount() > 0 && m_storageReport)
        emit storageChanged();  // the report is out of date where items went
    refreshSystemState();
    session->setPhase(CleanupSession::Phase::finished);
    refreshTrash();  // after the phase, so the Trash row may be scanned again
    // Images whose containers went show their new state; rescans wait until the run has ended.
    if (session->removedContainers())
        rescan(CategoryID::docker);
    emit cleanupChanged();
    finishQuitWhenIdle();
}

void AppModel::joinCleanupThread()
{
    if (m_cleanupThread.joinable())
        m_cleanupThread.join();
}

void AppModel::stopCleanup()
{
    if (m_cleanup)
        m_cleanup->requestStop();
}

void AppModel::closeCleanup()
{
    if (!m_cleanup || m_cleanup->phase() == CleanupSession::Phase::running)
        return;
    if (m_cleanup->phase() == CleanupSession::Phase::finished)
        m_lastRunCleanup = std::move(m_cleanup);
    m_cleanup.reset();
    emit cleanupChanged();
}

void AppModel::removeFromResults(const CleanupItem& item)
{
    auto found = m_results.find(item.category);
    if (found == m_results.end())
        return;
    const qsizetype before = found->second.items.size();
    found->second.items.removeIf([&](const CleanupItem& each) { return each.id == item.id; });
    if (found->second.items.size() != before) {
        remakeFacts(item.category);
        emit resultsChanged(item.category);
    }
    if (m_selection.remove(item.id))
        emit selectionChanged();
    indexDuplicates();
    removeLoneCopies();
}

bool AppModel::isChangingFiles() const
{
    return (m_cleanup && m_cleanup->phase() == CleanupSession::Phase::running) || (m_move && m_move->isRunning())
        || m_trash.isEmptying;
}

void AppModel::stopForQuit(std::function<void()> then)
{
    if (!isChangingFiles()) {
        then();
        return;
    }
    m_quitCompletion = std::move(then);
    stopCleanup();
    stopMove();
    stopEmptyingTrash();
}

void AppModel::finishQuitWhenIdle()
{
    if (m_quitCompletion && !isChangingFiles())
        std::exchange(m_quitCompletion, {})();
}

void AppModel::emptyTrash()
{
    if (m_trash.isEmptying)
        return;
    m_trash = TrashState{};
    m_trash.isEmptying = true;
    m_trashStop = CancellationToken();
    emit trashChanged();
    // A Trash of many thousand items reports each one: only one report waits in the event queue
    // at a time, and it shows the latest figures when its turn comes.
    struct Latest {
        std::atomic<int> removed{0};
        std::atomic<int> total{0};
        std::atomic<bool> waiting{false};
    };
    auto latest = std::make_shared<Latest>();
    const FreedesktopTrash::EmptyProgress progress = [guard = QPointer<AppModel>(this), latest](int removed, int total) {
        latest->removed = removed;
        latest->total = total;
        if (latest->waiting.exchange(true))
            return;
        QMetaObject::invokeMethod(QCoreApplication::instance(), [guard, latest] {
            latest->waiting = false;
            if (guard)
                guard->trashProgress(latest->removed, latest->total);
        }, Qt::QueuedConnection);
    };
    Background::run(this, [empty = m_services.emptyTrash, progress, stop = m_trashStop] {
        return empty ? empty(progress, stop) : std::nullopt;
    }, [this](const std::optional<QString>& failure) { trashEmptied(failure); });
}

void AppModel::stopEmptyingTrash()
{
    if (!m_trash.isEmptying || m_trash.stopRequested)
        return;
    m_trash.stopRequested = true;
    m_trashStop.cancel();
    emit trashChanged();
}

// Reports queued before the end may arrive after it; they change nothing then.
void AppModel::trashProgress(int removed, int total)
{
    if (!m_trash.isEmptying)
        return;
    m_trash.removed = removed;
    m_trash.total = total;
    emit trashChanged();
}

void AppModel::trashEmptied(const std::optional<QString>& failure)
{
    m_trash = {false, m_trash.removed, m_trash.total, m_trash.stopRequested, failure.value_or(QString())};
    if (!failure && m_cleanup) {
        m_cleanup->setTrashEmptied();
        remeasureFreeAfter();
    }
    if (!failure && m_lastRunCleanup)
        m_lastRunCleanup->setTrashEmptied();
    emit trashChanged();
    refreshSystemState();
    refreshTrash();
    finishQuitWhenIdle();
}

// What the open session's results count as freed includes the Trash it emptied.
void AppModel::remeasureFreeAfter()
{
    if (!m_cleanup || m_cleanup->phase() != CleanupSession::Phase::finished)
        return;
    Background::run(m_cleanup.get(), [read = m_services.readSystemState, home = m_settings->home()] { return read(home).freeBytes; },
                    [session = m_cleanup.get()](std::optional<qint64> free) {
                        if (free)
                            session->setFreeAfter(free);
                    });
}

// The Trash row is the Trash scanner's own; scanning it again measures it. While it is being
// measured (or the Trash emptied) the newer request waits for that to end.
void AppModel::refreshTrash()
{
    const CategoryResult::State state = result(CategoryID::trash).state;
    if (state == CategoryResult::State::scanning || m_trash.isEmptying) {
        m_trashRefreshPending = true;
        return;
    }
    m_trashRefreshPending = false;
    if (state == CategoryResult::State::done)
        startRescan(CategoryID::trash);
}
