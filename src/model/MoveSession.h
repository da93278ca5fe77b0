#pragma once

#include "actions/MoverOutcome.h"
#include "machinery/CancellationToken.h"
#include "vocabulary/CleanupItem.h"

#include <QObject>

#include <optional>

// One move to another disk: the item, where it goes, the bytes copied against the total for the
// progress bar, and the outcome once it has ended. Lives on the GUI thread; the moving task on a
// worker thread reports through queued calls and shares only the stop token.
class MoveSession : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MoveSession)

public:
    MoveSession(CleanupItem item, QString destination, QObject* parent = nullptr);

    const CleanupItem& item() const { return m_item; }
    const QString& destination() const { return m_destination; }
    qint64 copied() const { return m_copied; }
    qint64 total() const { return m_total; }
    // Nothing while the move runs.
    const std::optional<Mover::Outcome>& outcome() const { return m_outcome; }
    bool isRunning() const { return !m_outcome; }
    bool stopRequested() const { return m_stop.isCancelled(); }
    // What the moving task polls; Stop cancels it.
    const CancellationToken& stopToken() const { return m_stop; }

    // --- Changes, GUI thread only
    void requestStop() { m_stop.cancel(); }
    void setProgress(qint64 copied, qint64 total);
    void setOutcome(const Mover::Outcome& outcome);

signals:
    void changed();

private:
    CleanupItem m_item;
    QString m_destination;
    qint64 m_copied = 0;
    qint64 m_total = 0;
    std::optional<Mover::Outcome> m_outcome;
    CancellationToken m_stop;
};
