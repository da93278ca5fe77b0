#include "scan/ShallowNewest.h"

#include "platform/Platform.h"
#include "scan/WalkNames.h"

#include <QFile>
#include <QTimeZone>

#include <algorithm>
#include <sys/stat.h>

bool ShallowNewest::enters(std::string_view name, int depth)
{
    if (depth == 0)
        return true;
    return depth <= deepestEnteredLevel && !name.empty() && name.front() != '.'
        && !WalkNames::contains(WalkNames::buildFolders, name);
}

QDateTime ShallowNewest::dateOf(qint64 nanoseconds)
{
    return QDateTime::fromMSecsSinceEpoch(nanoseconds / 1'000'000, QTimeZone::utc());
}

void ShallowNewest::Level::add(const Level& other)
{
    entries += other.entries;
    if (other.newest)
        newest = std::max(newest.value_or(other.newest.value()), *other.newest);
    complete = complete && other.complete;
}

ShallowNewest ShallowNewest::forked() const
{
    ShallowNewest piece(m_limit);
    for (const Frame& frame : m_frames) {
        Frame copy;
        copy.entered = frame.entered;
        copy.shared = true;
        piece.m_frames.push_back(copy);
    }
    return piece;
}

// Drops the copied folders an event shows this piece has moved past. A piece whose first event
// lies right inside the deepest copied folder walks below that folder, all of it: it becomes its own.
void ShallowNewest::settle(size_t open)
{
    bool dropped = false;
    while (m_frames.size() > open && m_frames.back().shared) {
        m_frames.pop_back();
        dropped = true;
    }
    if (!m_started && !dropped && m_frames.size() == open && !m_frames.empty())
        m_frames.back().shared = false;
    m_started = true;
}

// Every entry the walk meets counts in each level of the folder holding it.
void ShallowNewest::countInParent(const TreeEntry& entry)
{
    const auto depth = static_cast<size_t>(entry.depth());
    if (depth == 0 || m_frames.size() != depth)
        return;
    const bool file = S_ISREG(entry.status().st_mode);
    const qint64 time = file ? Platform::modificationNanoseconds(entry.status()) : 0;
    for (Level& level : m_frames.back().levels) {
        ++level.entries;
        if (file)
            level.newest = std::max(level.newest.value_or(time), time);
    }
}

void ShallowNewest::entered(const TreeEntry& folder)
{
    settle(static_cast<size_t>(folder.depth()));
    countInParent(folder);
    Frame frame;
    frame.entered = enters(folder.name(), 1);
    m_frames.push_back(frame);
}

void ShallowNewest::passedOver(const TreeEntry& folder)
{
    settle(static_cast<size_t>(folder.depth()));
    countInParent(folder);
    if (enters(folder.name(), 1) && !m_frames.empty()) {
        m_frames.back().levels[1].complete = false;  // the rule would have looked inside
        m_frames.back().levels[2].complete = false;
    }
}

void ShallowNewest::visited(const TreeEntry& item)
{
    settle(static_cast<size_t>(item.depth()));
    countInParent(item);
}

void ShallowNewest::left(const TreeEntry& folder)
{
    const auto depth = static_cast<size_t>(folder.depth());
    settle(depth + 1);
    if (m_frames.size() != depth + 1)
        return;
    Frame frame = m_frames.back();
    m_frames.pop_back();
    if (frame.shared) {
        for (Level& level : frame.levels)
            level.complete = false;
    }
    const Level& shallowPart = frame.levels[deepestEnteredLevel];
    if (frame.project && !frame.shared && shallowPart.complete && shallowPart.entries + 1 <= m_limit)
        m_known.insert(folder.path(), shallowPart.newest);
    if (m_frames.empty() || !frame.entered)
        return;
    for (int level = 1; level <= deepestEnteredLevel; ++level)
        m_frames.back().levels[level].add(frame.levels[level - 1]);
}

// What the walk could not read the rule could not either, or only in part: the folders around it
// stay unknown.
void ShallowNewest::problem(const TreeEntry& entry)
{
    const auto from = static_cast<size_t>(std::max(entry.depth() - 1, 0));
    for (size_t index = from; index < m_frames.size(); ++index) {
        for (Level& level : m_frames[index].levels)
            level.complete = false;
    }
}

void ShallowNewest::markProjectHolding(const TreeEntry& entry)
{
    settle(static_cast<size_t>(entry.depth()));
    if (entry.depth() > 0 && m_frames.size() == static_cast<size_t>(entry.depth()))
        m_frames.back().project = true;
}

void ShallowNewest::append(ShallowNewest&& later)
{
    m_known.insert(later.m_known);
}
