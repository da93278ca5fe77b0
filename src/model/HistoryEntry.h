#pragma once

#include "actions/DiskSpace.h"
#include "history/HistoryRecord.h"
#include "storage/StorageReport.h"
#include "vocabulary/CategoryResult.h"

#include <map>
#include <optional>

// What the history keeps of a finished full scan and of a storage analysis, made the same way
// by the app and the report tool.
namespace HistoryEntry {

// Each category's total (what cleaning every row could free) and row count.
HistoryRecord fromScan(const QDateTime& date, const std::map<CategoryID, CategoryResult>& results,
                       const std::optional<DiskSpace>& disk);

// Each bucket's total and the folders of the buckets' lists with their bytes and file counts.
HistoryRecord fromStorage(const StorageReport& report, const std::optional<DiskSpace>& disk);

}  // namespace HistoryEntry
