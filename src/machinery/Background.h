#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <utility>

// The one shape of short background work: run on the global thread pool (which the application
// waits for when it ends), then hand the result back on the GUI thread to an owner that may be
// gone by then. Thread-safe; call it from the GUI thread.
namespace Background {

// Runs `work()` on a pool thread and then `done(result)` on the GUI thread, unless `owner` has
// been destroyed in between; then the result is dropped.
template <typename Work, typename Done>
void run(QObject* owner, Work work, Done done)
{
    QThreadPool::globalInstance()->start([guard = QPointer<QObject>(owner), work = std::move(work), done = std::move(done)] {
        QMetaObject::invokeMethod(QCoreApplication::instance(), [guard, done, result = work()] {
            if (guard)
                done(result);
        }, Qt::QueuedConnection);
    });
}

}  // namespace Background
