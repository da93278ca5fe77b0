#pragma once

#include <atomic>
#include <memory>

// A shared stop flag: the owner of a task cancels it, the task's loops poll it.
// Copies share one flag; thread-safe.
class CancellationToken {
public:
    CancellationToken() : m_flag(std::make_shared<std::atomic<bool>>(false)) {}

    void cancel() const { m_flag->store(true, std::memory_order_relaxed); }
    bool isCancelled() const { return m_flag->load(std::memory_order_relaxed); }

private:
    std::shared_ptr<std::atomic<bool>> m_flag;
};
