#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <functional>

// Runs the event loop until `done` holds or `timeoutMs` passes; returns whether it held.
// For tests that wait on queued results from worker threads.
inline bool waitUntil(const std::function<bool()>& done, int timeoutMs = 10000)
{
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        if (timer.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(1);
    }
    return true;
}
