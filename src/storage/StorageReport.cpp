#include "storage/StorageReport.h"

#include <algorithm>
#include <numeric>

qint64 StorageReport::measured() const
{
    return std::accumulate(totals.begin(), totals.end(), qint64{0});
}

QList<QPair<StorageBucket, qint64>> StorageReport::sortedBuckets() const
{
    QList<QPair<StorageBucket, qint64>> sorted;
    for (StorageBucket bucket : StorageBuckets::allCases())
        sorted.append({bucket, total(bucket)});
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    return sorted;
}

qint64 StorageReport::notMeasured() const
{
    if (diskUsed <= 0)
        return 0;
    return std::max<qint64>(0, diskUsed - measured());
}

QMap<QString, qint64> StorageReport::rawTotals() const
{
    QMap<QString, qint64> raw;
    for (StorageBucket bucket : StorageBuckets::allCases())
        raw.insert(StorageBuckets::rawValue(bucket), total(bucket));
    return raw;
}
