#pragma once

#include <QString>

#include <mutex>

// How far a scan has come: entries looked at and the folder being read. Written by scanners
// on worker threads, read by the screen; every access takes the one mutex, held only for
// the assignment.
class ScanProgress {
public:
    struct Snapshot {
        qint64 entries = 0;
        QString currentFolder;
    };

    void addEntries(qint64 count);
    void setCurrentFolder(const QString& folder);
    void reset();
    Snapshot snapshot() const;

private:
    mutable std::mutex m_mutex;
    qint64 m_entries = 0;         // guarded by m_mutex
    QString m_currentFolder;      // guarded by m_mutex
};
