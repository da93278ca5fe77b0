#pragma once

#include "storage/StorageReport.h"

#include <QByteArray>
#include <QHash>

// Builds one folder's share of a bucket during the walk. Its list of largest files stays
// bounded: when it reaches twice the kept number it is sorted and cut to the kept number, and
// files no larger than the last cut's smallest are not even named. Not thread-safe; one walk owns it.
class FolderUsageBuilder {
public:
    explicit FolderUsageBuilder(QString path);

    [[nodiscard]] const QString& path() const { return m_usage.path; }

    // `path` is asked for only when the file may make the list.
    template <typename PathOf>
    void addFile(qint64 bytes, const QByteArray& group, bool grouped, PathOf path)
    {
        ++m_usage.fileCount;
        m_usage.bytes += bytes;
        if (grouped)
            addToGroup(group, bytes);
        if (!m_cut || bytes > m_floor)
            keepFile(path(), bytes);
    }
    void addBytes(qint64 bytes) { m_usage.bytes += bytes; }

    // The usage with its files cut to the kept number, largest first.
    [[nodiscard]] StorageReport::FolderUsage finish() &&;

    // Adds `from` to `into` (the same folder seen from two roots): sums, files merged and cut.
    static void merge(StorageReport::FolderUsage& into, StorageReport::FolderUsage from);
    // Sorts by bytes, largest first (ties by path), and cuts to `limit`.
    static void sortAndCut(QList<StorageReport::FileUsage>& files, qsizetype limit);
    static void sortAndCut(QList<StorageReport::FolderUsage>& folders, qsizetype limit);

private:
    void addToGroup(const QByteArray& group, qint64 bytes);
    void keepFile(const QString& path, qint64 bytes);

    StorageReport::FolderUsage m_usage;
    QHash<QByteArray, StorageReport::SubfolderUsage> m_groups;  // raw names until the end
    qint64 m_floor = 0;  // the smallest file kept at the last cut
    bool m_cut = false;
};
