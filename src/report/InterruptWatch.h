#pragma once

#include <atomic>
#include <functional>
#include <thread>

// While it lives, Ctrl-C (SIGINT) does not end the process: the first one calls `onInterrupt`
// on the watch's own thread, later ones are ignored. A thread waits for the signal (sigwait),
// so no handler and no process-wide flag are needed. SIGINT stays blocked in the thread that
// made the watch and in every thread started after it, also once the watch is gone (the
// process is about to end then), so make it before any other thread exists.
class InterruptWatch {
public:
    explicit InterruptWatch(std::function<void()> onInterrupt);
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;

private:
    void watch();

    std::function<void()> m_onInterrupt;
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};
