#include "report/InterruptWatch.h"

#include <csignal>
#include <pthread.h>

namespace {

sigset_t interruptOnly()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    return set;
}

}  // namespace

InterruptWatch::InterruptWatch(std::function<void()> onInterrupt) : m_onInterrupt(std::move(onInterrupt))
{
    const sigset_t set = interruptOnly();
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    m_thread = std::thread([this] { watch(); });
}

// The watching thread is woken with a SIGINT of its own after `m_done` is set, so it ends
// without taking it for the person's.
InterruptWatch::~InterruptWatch()
{
    m_done = true;
    pthread_kill(m_thread.native_handle(), SIGINT);
    m_thread.join();
}

void InterruptWatch::watch()
{
    const sigset_t set = interruptOnly();
    bool called = false;
    for (;;) {
        int signal = 0;
        if (sigwait(&set, &signal) != 0)
            continue;
        if (m_done)
            return;
        if (!called) {
            called = true;
            m_onInterrupt();
        }
    }
}
