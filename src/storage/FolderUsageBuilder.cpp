#include "storage/FolderUsageBuilder.h"

#include <QFile>

#include <algorithm>

FolderUsageBuilder::FolderUsageBuilder(QString path)
{
    m_usage.path = std::move(path);
}

void FolderUsageBuilder::addToGroup(const QByteArray& group, qint64 bytes)
{
    StorageReport::SubfolderUsage& usage = m_groups[group];
    usage.bytes += bytes;
    ++usage.fileCount;
}

void FolderUsageBuilder::keepFile(const QString& path, qint64 bytes)
{
    m_usage.files.append({path, bytes});
    if (m_usage.files.size() < 2 * StorageReport::filesKept)
        return;
    sortAndCut(m_usage.files, StorageReport::filesKept);
    m_floor = m_usage.files.last().bytes;
    m_cut = true;
}

StorageReport::FolderUsage FolderUsageBuilder::finish() &&
{
    sortAndCut(m_usage.files, StorageReport::filesKept);
    for (auto group = m_groups.cbegin(); group != m_groups.cend(); ++group)
        m_usage.subfolders.insert(QFile::decodeName(group.key()), group.value());
    return std::move(m_usage);
}

void FolderUsageBuilder::merge(StorageReport::FolderUsage& into, StorageReport::FolderUsage from)
{
    into.bytes += from.bytes;
    into.fileCount += from.fileCount;
    into.files.append(std::move(from.files));
    sortAndCut(into.files, StorageReport::filesKept);
    for (auto group = from.subfolders.cbegin(); group != from.subfolders.cend(); ++group) {
        StorageReport::SubfolderUsage& usage = into.subfolders[group.key()];
        usage.bytes += group->bytes;
        usage.fileCount += group->fileCount;
    }
}

void FolderUsageBuilder::sortAndCut(QList<StorageReport::FileUsage>& files, qsizetype limit)
{
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.path < b.path;
    });
    if (files.size() > limit)
        files.resize(limit);
}

void FolderUsageBuilder::sortAndCut(QList<StorageReport::FolderUsage>& folders, qsizetype limit)
{
    std::sort(folders.begin(), folders.end(), [](const auto& a, const auto& b) {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.path < b.path;
    });
    if (folders.size() > limit)
        folders.resize(limit);
}
