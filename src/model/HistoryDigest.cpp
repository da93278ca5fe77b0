#include "model/HistoryDigest.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "history/HistoryGrowth.h"
#include "storage/StorageBucket.h"
#include "vocabulary/CategoryID.h"

#include <QCoreApplication>

namespace HistoryDigest {

QString categoryTitle(const QString& raw)
{
    const auto category = Categories::fromRawValue(raw);
    return category ? Categories::title(*category) : raw;
}

QString bucketTitle(const QString& raw)
{
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        if (StorageBuckets::rawValue(bucket) == raw)
            return StorageBuckets::title(bucket);
    }
    return raw;
}

std::optional<QString> sinceLastScan(const QList<HistoryRecord>& newestFirst, const QDateTime& now)
{
    const auto pair = HistoryGrowth::pair(newestFirst, HistoryRecord::Kind::scan, std::nullopt);
    if (!pair)
        return std::nullopt;
    const QString change = ByteCount::formatChange(HistoryGrowth::headline(*pair));
    const QString when = RelativeDate::format(pair->before.date, now);
    QStringList grown;
    for (const HistoryGrowth::Change& category : HistoryGrowth::totals(pair->before.categories, pair->after.categories)) {
        if (category.growth() <= 0 || grown.size() == categoriesNamed)
            break;
        //: One category in the Overview's change since the last scan: %1 its name, %2 its growth ("Docker +900 MB")
        grown.append(QCoreApplication::translate("HistoryDigest", "%1 %2").arg(categoryTitle(category.name), ByteCount::formatChange(category.growth())));
    }
    if (grown.isEmpty())
        //: The Overview's change since the last scan; %1 the change ("+3.2 GB"), %2 when that scan was ("3 days ago")
        return QCoreApplication::translate("HistoryDigest", "%1 since %2").arg(change, when);
    //: The Overview's change since the last scan; %1 the change ("+3.2 GB"), %2 when that scan was ("3 days ago"), %3 the categories that grew most
    return QCoreApplication::translate("HistoryDigest", "%1 since %2: %3").arg(change, when, grown.join(QStringLiteral(", ")));
}

}  // namespace HistoryDigest
