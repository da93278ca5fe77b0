// The move to another disk of AppModel: one move at a time on a worker thread of its own, whose
// progress and outcome come back to the GUI thread through queued calls.
#include "model/AppModel.h"

#include "machinery/Background.h"
#include "model/SettingsStore.h"

#include <QPointer>

bool AppModel::startMove(const CleanupItem& item, const QString& destination)
{
    if (isBusyScanning() || m_cleanup || m_move || !item.canMoveToAnotherDisk())
        return false;
    joinMoveThread();
    Mover::Environment environment = Mover::Environment::system(m_settings->home(), m_settings->scanRoots());
    m_move = std::make_unique<MoveSession>(item, destination);
    QPointer<MoveSession> session(m_move.get());
    const Mover::Progress progress = [this, session](qint64 copied, qint64 total) {
        QMetaObject::invokeMethod(this, [session, copied, total] {
            if (session)
                session->setProgress(copied, total);
        }, Qt::QueuedConnection);
    };
    // The worker never waits for the GUI thread, so stopping and joining it can't deadlock.
    m_moveThread = std::thread([this, item, destination, progress, environment, stop = m_move->stopToken(),
                                move = m_services.moveItem]() mutable {
        environment.removal.cancellation = &stop;
        const Mover::Outcome outcome = move(item, destination, progress, environment);
        QMetaObject::invokeMethod(this, [this, outcome] { finishMove(outcome); }, Qt::QueuedConnection);
    });
    emit moveChanged();
    return true;
}

void AppModel::finishMove(const Mover::Outcome& outcome)
{
    joinMoveThread();
    if (!m_move)
        return;
    m_move->setOutcome(outcome);
    if (outcome.originalTrashed()) {
        removeFromResults(m_move->item());
        noteStorageChange(m_move->item());
        emit storageChanged();
        refreshSystemState();
        refreshTrash();
    }
    emit moveChanged();
    finishQuitWhenIdle();
}

void AppModel::joinMoveThread()
{
    if (m_moveThread.joinable())
        m_moveThread.join();
}

void AppModel::stopMove()
{
    if (m_move)
        m_move->requestStop();
}

void AppModel::closeMove()
{
    if (!m_move || m_move->isRunning())
        return;
    m_move.reset();
    emit moveChanged();
}

void AppModel::checkMoveDestination(const CleanupItem& item, const QString& destination, QObject* context,
                                    std::function<void(std::optional<QString>)> answer)
{
    Background::run(context, [item, destination] { return Mover::problem(destination, item); }, std::move(answer));
}
