#include "history/HistoryThinning.h"

#include <QSet>

#include <algorithm>

namespace HistoryThinning {

namespace {

// The calendar period a scan of this age is kept one of; absent while every scan is kept.
std::optional<QString> period(const QDateTime& date, qint64 ageDays)
{
    const QDate day = date.toUTC().date();
    if (ageDays < everyScanDays)
        return std::nullopt;
    if (ageDays < weeklyDays) {
        int weekYear = 0;
        const int week = day.weekNumber(&weekYear);
        return QStringLiteral("w%1-%2").arg(weekYear).arg(week);
    }
    return QStringLiteral("m%1-%2").arg(day.year()).arg(day.month());
}

void thinKind(const QList<Entry>& newestFirst, const QDateTime& now, QList<qint64>* surplus)
{
    QSet<QString> periodsSeen;
    int keptCount = 0;
    for (const Entry& entry : newestFirst) {
        const qint64 ageDays = entry.date.daysTo(now);
        const auto within = period(entry.date, ageDays);
        const bool keep = ageDays <= keptDays && keptCount < kept && (!within || !periodsSeen.contains(*within));
        if (within)
            periodsSeen.insert(*within);
        if (keep)
            ++keptCount;
        else
            surplus->append(entry.id);
    }
}

}  // namespace

QList<qint64> surplus(QList<Entry> entries, const QDateTime& now)
{
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.date != b.date ? a.date > b.date : a.id > b.id;
    });
    QList<qint64> ids;
    for (HistoryRecord::Kind kind : {HistoryRecord::Kind::scan, HistoryRecord::Kind::storage}) {
        QList<Entry> ofKind;
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(ofKind), [kind](const Entry& e) { return e.kind == kind; });
        thinKind(ofKind, now, &ids);
    }
    return ids;
}

}  // namespace HistoryThinning
