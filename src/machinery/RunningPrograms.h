#pragma once

#include <QStringList>

#include <functional>
#include <mutex>

// The executable paths of the running programs, read on first use and then kept, so that every
// scanner of one scan sees the same list and the system is asked once. Each scan's context
// holds a fresh one; tests hand in their own list. Thread-safe: the first caller reads, the
// others wait for it.
class RunningPrograms {
public:
    using Source = std::function<QStringList()>;

    RunningPrograms();  // the system's list (Platform::runningExecutables)
    explicit RunningPrograms(Source source) : m_source(std::move(source)) {}

    [[nodiscard]] const QStringList& list() const;

private:
    Source m_source;
    mutable std::once_flag m_read;
    mutable QStringList m_list;  // written once, under m_read
};
