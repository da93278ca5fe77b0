#include "machinery/ToolStop.h"

#include "platform/Platform.h"

#include <QSet>

#include <csignal>
#include <mutex>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds gracePeriod{5};
constexpr std::chrono::seconds unkillableLimit{2};
constexpr std::chrono::milliseconds roundInterval{50};

// Never destroyed: detached orphan watchers may still use them while the process exits.
std::mutex& toolsMutex = *new std::mutex;
QSet<pid_t>& launchedTools = *new QSet<pid_t>;  // guarded by toolsMutex

// Read after the process table, so every tool in the table is in it.
QSet<pid_t> launchedToolsNow()
{
    const std::lock_guard lock(toolsMutex);
    return launchedTools;
}

// An orphan this process adopted: our child, not one of the tools, and not in our own group
// (children that other parts of the application start stay in it).
bool isAdoptedOrphan(const Platform::ProcessEntry& entry, const QSet<pid_t>& tools)
{
    return entry.parent == ::getpid() && entry.group != ::getpgrp() && !tools.contains(entry.pid);
}

// The tool, its group, the orphans adopted from it, and all their descendants. `seen` holds every
// process found in earlier rounds: a process whose parent ended while the table was read still
// names that parent, and is caught through it until it has been adopted.
QList<Platform::ProcessEntry> treeOf(pid_t tool, const std::vector<Platform::ProcessEntry>& table, const QSet<pid_t>& seen)
{
    const QSet<pid_t> tools = launchedToolsNow();
    QSet<pid_t> found;
    QList<Platform::ProcessEntry> tree;
    for (const Platform::ProcessEntry& entry : table) {
        if (entry.pid == tool || entry.group == tool || seen.contains(entry.parent) || isAdoptedOrphan(entry, tools)) {
            found.insert(entry.pid);
            tree.append(entry);
        }
    }
    for (qsizetype i = 0; i < tree.size(); ++i) {  // grows while it is read: breadth first
        for (const Platform::ProcessEntry& entry : table) {
            if (entry.parent == tree[i].pid && !found.contains(entry.pid)) {
                found.insert(entry.pid);
                tree.append(entry);
            }
        }
    }
    return tree;
}

// An ended orphan that we adopted stays a zombie until we collect it; a tool is collected by its run.
void collectIfAdopted(const Platform::ProcessEntry& entry)
{
    if (entry.parent == ::getpid())
        (void)ToolStop::collectOrphan(entry.pid);
}

}  // namespace

ToolStop::ToolStop(pid_t tool) : m_tool(tool), m_started(Clock::now())
{
    ::kill(-tool, SIGTERM);
    m_lastRound = m_started - roundInterval;
    (void)round(false);
}

bool ToolStop::round(bool toolCollected)
{
    const Clock::time_point now = Clock::now();
    if (now - m_lastRound < roundInterval)
        return toolCollected && nothingLeft();
    m_lastRound = now;
    const bool graceOver = now - m_started >= gracePeriod;
    if (graceOver && !m_groupKilled) {
        ::kill(-m_tool, SIGKILL);
        m_groupKilled = true;
    }
    bool anyAlive = false;
    for (const Platform::ProcessEntry& entry : treeOf(m_tool, Platform::processTable(), m_seen)) {
        m_seen.insert(entry.pid);
        if (entry.ended) {
            collectIfAdopted(entry);
            continue;
        }
        anyAlive = true;
        signal(entry.pid, graceOver);
    }
    // Two empty rounds in a row: an orphan on its way to its new parent shows up in one of them.
    m_quietRounds = anyAlive ? 0 : m_quietRounds + 1;
    return toolCollected && (nothingLeft() || now - m_started >= gracePeriod + unkillableLimit);
}

void ToolStop::signal(pid_t pid, bool graceOver)
{
    const std::optional<qint64> startTime = Platform::processStartTime(pid);
    if (!startTime)
        return;  // ended since the table was read
    if (m_terminated.value(pid, *startTime) != *startTime)
        m_terminated.remove(pid);  // the id now names a newer process of the tree: it gets its own SIGTERM
    if (graceOver) {
        ::kill(pid, SIGKILL);
    } else if (!m_terminated.contains(pid)) {
        m_terminated.insert(pid, *startTime);
        ::kill(pid, SIGTERM);
    }
}

pid_t ToolStop::launchRegistered(const std::function<pid_t()>& spawn)
{
    const std::lock_guard lock(toolsMutex);
    const pid_t tool = spawn();
    if (tool > 0)
        launchedTools.insert(tool);
    return tool;
}

void ToolStop::forgetTool(pid_t tool)
{
    const std::lock_guard lock(toolsMutex);
    launchedTools.remove(tool);
}

bool ToolStop::collectOrphan(pid_t pid)
{
    const std::lock_guard lock(toolsMutex);
    if (launchedTools.contains(pid))
        return false;
    ::waitpid(pid, nullptr, WNOHANG);
    return true;
}
