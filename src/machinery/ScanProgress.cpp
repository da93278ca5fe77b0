#include "machinery/ScanProgress.h"

void ScanProgress::addEntries(qint64 count)
{
    std::lock_guard lock(m_mutex);
    m_entries += count;
}

void ScanProgress::setCurrentFolder(const QString& folder)
{
    std::lock_guard lock(m_mutex);
    m_currentFolder = folder;
}

void ScanProgress::reset()
{
    std::lock_guard lock(m_mutex);
    m_entries = 0;
    m_currentFolder.clear();
}

ScanProgress::Snapshot ScanProgress::snapshot() const
{
    std::lock_guard lock(m_mutex);
    return {m_entries, m_currentFolder};
}
