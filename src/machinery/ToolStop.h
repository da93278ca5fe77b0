#pragma once

#include <QHash>
#include <QSet>

#include <chrono>
#include <functional>
#include <sys/types.h>

// Stops one tool that ProcessRunner launched in a process group of its own, together with
// everything it started: the group, every descendant, and (on Linux, where the runner adopts
// orphans) every orphan a descendant left behind. The search is repeated until nothing is left,
// because a process may start another while it is being stopped (a TERM trap, a double fork).
// SIGTERM first, once per process; SIGKILL to whatever remains after the grace period, never to
// a process id the system has meanwhile given to another program. Owned by one run, one thread.
class ToolStop {
public:
    // Starts the stop: SIGTERM to the tool's group and to every process found.
    explicit ToolStop(pid_t tool);

    // One more search and round of signals (at most every 50 ms; calls in between only report).
    // `toolCollected` says the runner has collected the tool's own exit. True when that is so
    // and nothing of the tree is left, or the tree outlived the grace period by two seconds
    // (an unkillable process waiting on a device), so the run can return.
    [[nodiscard]] bool round(bool toolCollected);

    // Every launched tool is registered from launch until its exit is collected, so another
    // run's tool is never mistaken for an orphan this process adopted. `spawn` starts the tool
    // and returns its id (or a negative number); no search reads the registry while it runs, so
    // a tool can't be seen before it is registered. Thread-safe.
    static pid_t launchRegistered(const std::function<pid_t()>& spawn);
    static void forgetTool(pid_t tool);

    // Collects `pid` if it has ended, unless it is a registered tool (its run collects that):
    // false then. No tool can be launched while this runs, so the id can't change meaning
    // between the look and the collection. Thread-safe.
    static bool collectOrphan(pid_t pid);

private:
    using Clock = std::chrono::steady_clock;

    void signal(pid_t pid, bool graceOver);
    bool nothingLeft() const { return m_quietRounds >= 2; }

    pid_t m_tool;
    Clock::time_point m_started;
    Clock::time_point m_lastRound;
    QHash<pid_t, qint64> m_terminated;  // process id -> start time, for those sent SIGTERM
    QSet<pid_t> m_seen;                 // every process found in the tree so far
    bool m_groupKilled = false;
    int m_quietRounds = 0;              // rounds in a row that found nothing alive
};
