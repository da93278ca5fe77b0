#pragma once

#include "scan/Scanner.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

// A scanner for model tests: returns the outputs it was given, optionally after holding until
// released or cancelled, so tests control finishing order and stopping.
class FakeScanner : public Scanner {
public:
    FakeScanner(QList<CategoryID> categories, ScanOutputs outputs)
        : m_categories(std::move(categories)), m_outputs(std::move(outputs)) {}

    // Holds scan() until release() or the scan's cancellation.
    void holdUntilReleased() { m_hold = true; }
    void release() { m_released = true; }
    int runs() const { return m_runs; }

    QList<CategoryID> categories() const override { return m_categories; }

    ScanOutputs scan(const ScanContext& context) const override
    {
        ++m_runs;
        while (m_hold && !m_released && !context.isCancelled())
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (m_hold && context.isCancelled())
            return {};  // stopped before it found anything
        return m_outputs;
    }

private:
    QList<CategoryID> m_categories;
    ScanOutputs m_outputs;
    std::atomic<bool> m_hold{false};
    std::atomic<bool> m_released{false};
    mutable std::atomic<int> m_runs{0};
};
