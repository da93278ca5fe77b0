#include "history/HistoryRecord.h"

namespace {

qint64 sum(const QMap<QString, HistoryRecord::Tally>& tallies)
{
    qint64 total = 0;
    for (const HistoryRecord::Tally& tally : tallies)
        total += tally.bytes;
    return total;
}

}  // namespace

qint64 HistoryRecord::found() const
{
    return sum(categories);
}

qint64 HistoryRecord::measured() const
{
    return sum(buckets);
}

QString HistoryRecord::rawKind(Kind kind)
{
    return kind == Kind::scan ? QStringLiteral("scan") : QStringLiteral("storage");
}

std::optional<HistoryRecord::Kind> HistoryRecord::kindFromRaw(const QString& raw)
{
    if (raw == QLatin1String("scan"))
        return Kind::scan;
    if (raw == QLatin1String("storage"))
        return Kind::storage;
    return std::nullopt;
}
