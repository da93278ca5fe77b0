#include "model/HistoryEntry.h"

namespace HistoryEntry {

namespace {

void setDisk(HistoryRecord* record, const std::optional<DiskSpace>& disk)
{
    if (!disk)
        return;
    record->diskUsed = disk->total - disk->available;
    record->diskFree = disk->available;
}

}  // namespace

HistoryRecord fromScan(const QDateTime& date, const std::map<CategoryID, CategoryResult>& results,
                       const std::optional<DiskSpace>& disk)
{
    HistoryRecord record;
    record.kind = HistoryRecord::Kind::scan;
    record.date = date;
    setDisk(&record, disk);
    for (const auto& [category, result] : results)
        record.categories.insert(Categories::rawValue(category), {result.totalSize(), result.items.size()});
    return record;
}

HistoryRecord fromStorage(const StorageReport& report, const std::optional<DiskSpace>& disk)
{
    HistoryRecord record;
    record.kind = HistoryRecord::Kind::storage;
    record.date = report.date;
    setDisk(&record, disk);
    if (!disk && report.diskUsed > 0)
        record.diskUsed = report.diskUsed;
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        const QString raw = StorageBuckets::rawValue(bucket);
        record.buckets.insert(raw, {report.total(bucket), 0});
        for (const StorageReport::FolderUsage& folder : report.foldersOf(bucket))
            record.folders.insert({raw, folder.path}, {folder.bytes, folder.fileCount});
    }
    return record;
}

}  // namespace HistoryEntry
