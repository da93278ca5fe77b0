#include "model/MoveSession.h"

MoveSession::MoveSession(CleanupItem item, QString destination, QObject* parent)
    : QObject(parent), m_item(std::move(item)), m_destination(std::move(destination))
{
}

void MoveSession::setProgress(qint64 copied, qint64 total)
{
    if (!isRunning() || (copied == m_copied && total == m_total))
        return;
    m_copied = copied;
    m_total = total;
    emit changed();
}

void MoveSession::setOutcome(const Mover::Outcome& outcome)
{
    m_outcome = outcome;
    emit changed();
}
