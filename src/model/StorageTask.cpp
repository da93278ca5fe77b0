#include "model/StorageTask.h"

#include <QMetaObject>

StorageTask::StorageTask(StorageAnalyzer::Request request, Analyze analyze, QObject* receiver,
                         FinishedHandler onFinished)
    : m_request(std::move(request))
{
    m_thread = std::thread([this, analyze = std::move(analyze), receiver = QPointer<QObject>(receiver),
                            onFinished = std::move(onFinished)] {
        std::optional<StorageReport> report = analyze(m_request);
        if (m_request.cancellation.isCancelled())
            report.reset();
        // The receiver's thread takes it; if the receiver is gone the call is dropped.
        QMetaObject::invokeMethod(receiver, [onFinished, report = std::move(report)] { onFinished(report); },
                                  Qt::QueuedConnection);
    });
}

StorageTask::~StorageTask()
{
    cancel();
    m_thread.join();
}
