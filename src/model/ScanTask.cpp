#include "model/ScanTask.h"

#include <QMetaObject>

ScanTask::ScanTask(std::vector<std::shared_ptr<const Scanner>> scanners, ScanContext context, ScanFilter filter,
                   QObject* receiver, OutputHandler onOutput)
    : m_scanners(std::move(scanners)), m_context(std::move(context)), m_filter(std::move(filter)), m_receiver(receiver),
      m_onOutput(std::move(onOutput))
{
}

ScanTask::~ScanTask()
{
    cancel();
    for (std::thread& thread : m_threads)
        thread.join();
}

void ScanTask::start()
{
    m_threads.reserve(m_scanners.size());
    for (const auto& scanner : m_scanners) {
        m_threads.emplace_back([this, scanner] {
            FilteredOutputs outputs = FilteredOutputs::filterNow(scanner->scan(m_context), m_filter, m_context.roots);
            // The receiver's thread applies it; if the receiver is gone the call is dropped.
            QMetaObject::invokeMethod(m_receiver, [handler = m_onOutput, outputs = std::move(outputs)] {
                handler(outputs);
            }, Qt::QueuedConnection);
        });
    }
}

QList<CategoryID> ScanTask::categories() const
{
    QList<CategoryID> result;
    for (const auto& scanner : m_scanners) {
        for (CategoryID category : scanner->categories()) {
            if (!result.contains(category))
                result.append(category);
        }
    }
    return result;
}
