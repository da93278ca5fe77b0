#include "ui/FirstPaintStamp.h"

#include <QDateTime>
#include <QEvent>
#include <QWidget>

FirstPaintStamp::FirstPaintStamp(QWidget* window, qint64 launchedAtMs, std::function<void(qint64)> tell)
    : QObject(window), m_launchedAtMs(launchedAtMs), m_tell(std::move(tell))
{
    window->installEventFilter(this);
}

bool FirstPaintStamp::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        m_tell(QDateTime::currentMSecsSinceEpoch() - m_launchedAtMs);
    }
    return QObject::eventFilter(watched, event);
}
