#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

// Measures how long the event loop of its thread goes without turning: a timer asks to run
// every `interval`; whatever comes on top of that between two runs is a stall. For measuring
// the app's responsiveness by hand (bench/); the app makes one only when asked to. Beside the
// stall it keeps the most processor time the thread itself used between two runs: the loop's
// own busiest stretch, which other programs on the machine do not lengthen.
class StallMeter : public QObject {
    Q_OBJECT

public:
    explicit StallMeter(std::chrono::milliseconds interval = std::chrono::milliseconds(10), QObject* parent = nullptr);

    // The longest stall seen so far, in milliseconds (0 before two runs of the timer).
    [[nodiscard]] qint64 longestStall() const { return m_longest; }
    // The most processor time, in milliseconds, the thread used between two runs of the timer.
    [[nodiscard]] qint64 busiestTurn() const { return m_busiest; }
    // How long the meter has watched, in milliseconds, from its first run.
    [[nodiscard]] qint64 watched() const;

private:
    void tick();

    std::chrono::milliseconds m_interval;
    QTimer m_timer;
    QElapsedTimer m_sinceFirst;
    qint64 m_last = -1;
    qint64 m_longest = 0;
    qint64 m_lastBusy = 0;  // the thread's processor time at the last run, in microseconds
    qint64 m_busiest = 0;
};
