#pragma once

#include "storage/StorageAnalyzer.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <thread>

// Runs one storage analysis on a worker thread of its own and hands the report to `onFinished`
// on the thread of `receiver` (a queued call); absent when it was cancelled. Destroying the task
// cancels it and waits for its thread, so no worker outlives its owner.
class StorageTask {
public:
    using Analyze = std::function<std::optional<StorageReport>(const StorageAnalyzer::Request&)>;
    using FinishedHandler = std::function<void(const std::optional<StorageReport>&)>;

    StorageTask(StorageAnalyzer::Request request, Analyze analyze, QObject* receiver, FinishedHandler onFinished);
    ~StorageTask();
    StorageTask(const StorageTask&) = delete;
    StorageTask& operator=(const StorageTask&) = delete;

    void cancel() { m_request.cancellation.cancel(); }
    bool isCancelled() const { return m_request.cancellation.isCancelled(); }

private:
    StorageAnalyzer::Request m_request;
    std::thread m_thread;
};
