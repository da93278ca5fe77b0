#pragma once

#include "model/FilteredOutputs.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

// Runs a set of scanners side by side, one worker thread each, with no limit: a full scan
// starts all of them at once. Each finished scanner's output is handed to `onOutput` on the
// thread of `receiver` (a queued call), in finishing order, with the rows `filter` lets a list show of it
// worked out on the scanner's thread. Destroying the task cancels it and
// waits for its threads, so no worker outlives its owner.
class ScanTask {
public:
    using OutputHandler = std::function<void(const FilteredOutputs&)>;

    ScanTask(std::vector<std::shared_ptr<const Scanner>> scanners, ScanContext context, ScanFilter filter,
             QObject* receiver, OutputHandler onOutput);
    ~ScanTask();
    ScanTask(const ScanTask&) = delete;
    ScanTask& operator=(const ScanTask&) = delete;

    void start();
    void cancel() { m_context.cancellation.cancel(); }
    bool isCancelled() const { return m_context.isCancelled(); }
    size_t scannerCount() const { return m_scanners.size(); }
    QList<CategoryID> categories() const;

private:
    std::vector<std::shared_ptr<const Scanner>> m_scanners;
    ScanContext m_context;
    ScanFilter m_filter;
    QPointer<QObject> m_receiver;
    OutputHandler m_onOutput;
    std::vector<std::thread> m_threads;
};
