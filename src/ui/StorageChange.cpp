#include "ui/StorageChange.h"

#include "format/ByteCount.h"

#include <QCoreApplication>

namespace StorageChange {

namespace {

QString arrowed(qint64 growth)
{
    if (growth == 0)
        return {};
    //: A size change on the Storage screen; %1 is an arrow (up or down), %2 the change ("+1.2 GB")
    return QCoreApplication::translate("StorageChange", "%1 %2").arg(growth > 0 ? QStringLiteral("▲") : QStringLiteral("▼"), ByteCount::formatChange(growth));
}

}  // namespace

QString ofBucket(const std::optional<HistoryGrowth::Pair>& comparison, const QString& bucket)
{
    if (!comparison)
        return {};
    return arrowed(comparison->after.buckets.value(bucket).bytes - comparison->before.buckets.value(bucket).bytes);
}

QString ofFolder(const std::optional<HistoryGrowth::Pair>& comparison, const QString& bucket, const QString& path)
{
    if (!comparison)
        return {};
    const HistoryRecord::FolderKey key{bucket, path};
    // A folder that was not listed then is new to the list, not new on disk: no arrow.
    if (!comparison->before.folders.contains(key) || !comparison->after.folders.contains(key))
        return {};
    return arrowed(comparison->after.folders.value(key).bytes - comparison->before.folders.value(key).bytes);
}

QString withSize(const QString& size, const QString& change)
{
    return change.isEmpty() ? size : size + QStringLiteral("   ") + change;
}

}  // namespace StorageChange
