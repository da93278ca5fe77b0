#include "ui/StallMeter.h"

#include <time.h>

namespace {

qint64 threadProcessorMicroseconds()
{
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return qint64(spent.tv_sec) * 1'000'000 + spent.tv_nsec / 1'000;
}

}  // namespace

StallMeter::StallMeter(std::chrono::milliseconds interval, QObject* parent) : QObject(parent), m_interval(interval)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &StallMeter::tick);
    m_timer.start();
}

qint64 StallMeter::watched() const
{
    return m_sinceFirst.isValid() ? m_sinceFirst.elapsed() : 0;
}

void StallMeter::tick()
{
    // The first run only starts the clock: the time before it is the program's start-up, not
    // a stall of a running loop.
    if (!m_sinceFirst.isValid()) {
        m_sinceFirst.start();
        m_last = 0;
        m_lastBusy = threadProcessorMicroseconds();
        return;
    }
    const qint64 now = m_sinceFirst.elapsed();
    m_longest = std::max(m_longest, now - m_last - m_interval.count());
    m_last = now;
    const qint64 busy = threadProcessorMicroseconds();
    m_busiest = std::max(m_busiest, (busy - m_lastBusy) / 1'000);
    m_lastBusy = busy;
}
