#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QObject>
#include <QUuid>

#include <atomic>
#include <optional>

// One cleanup: the items fixed when it was prepared, the running figures and the outcome.
// Lives on the GUI thread; the removal task on a worker thread reports every change back
// through queued calls, and reads only `stopRequested` (atomic) and the environment (never
// changed after construction) directly.
class CleanupSession : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CleanupSession)

public:
    enum class Phase { confirming, running, finished };

    struct Failure {
        QString id;  // a fresh UUID
        QString title;
        QString reason;
    };

    using Outcome = RemovalOutcome;

    explicit CleanupSession(QList<CleanupItem> items, RemovalEnvironment environment = {}, QObject* parent = nullptr);

    const QList<CleanupItem>& items() const { return m_items; }
    // What removal may touch and through what, fixed when prepared; read by the worker.
    const RemovalEnvironment& environment() const { return m_environment; }
    Phase phase() const { return m_phase; }
    const QString& current() const { return m_current; }
    int processed() const { return m_processed; }
    qint64 movedToTrash() const { return m_movedToTrash; }
    qint64 removedByTools() const { return m_removedByTools; }
    const QList<Failure>& failures() const { return m_failures; }
    bool stopRequested() const { return m_stopRequested.load(); }
    bool stopped() const { return m_stopped; }
    bool trashEmptied() const { return m_trashEmptied; }
    std::optional<qint64> freeBefore() const { return m_freeBefore; }
    std::optional<qint64> freeAfter() const { return m_freeAfter; }
    bool removedContainers() const { return m_removedContainers; }
    // Items removed (to the Trash or by a tool).
    int removedCount() const { return m_processed - static_cast<int>(m_failures.size()); }

    // --- What the confirmation sheet states
    QList<CleanupItem> permanentItems() const;
    QList<CleanupItem> trashItems() const;
    QList<CleanupItem> riskyItems(const QString& home) const;
    int stoppedContainersOfSelectedImages() const;
    QString permanentTitle() const;
    QString riskyLine(const QString& home) const;
    QString permanentText() const;
    static QString permanentWarning();
    static QString trashHeading();
    static QString trashText();
    // Heading of the results sheet.
    QString resultTitle() const;

    // --- Changes, GUI thread only
    void setPhase(Phase phase);
    void setCurrent(const QString& title);
    void record(const CleanupItem& item, const Outcome& outcome);
    void requestStop() { m_stopRequested = true; }
    void setStopped() { m_stopped = true; }
    void setTrashEmptied();
    void setFreeBefore(std::optional<qint64> bytes) { m_freeBefore = bytes; }
    void setFreeAfter(std::optional<qint64> bytes);

signals:
    void changed();

private:
    QList<CleanupItem> m_items;
    const RemovalEnvironment m_environment;
    Phase m_phase = Phase::confirming;
    QString m_current;
    int m_processed = 0;
    qint64 m_movedToTrash = 0;
    qint64 m_removedByTools = 0;
    QList<Failure> m_failures;
    std::atomic<bool> m_stopRequested{false};
    bool m_stopped = false;
    bool m_trashEmptied = false;
    std::optional<qint64> m_freeBefore;
    std::optional<qint64> m_freeAfter;
    bool m_removedContainers = false;
};
