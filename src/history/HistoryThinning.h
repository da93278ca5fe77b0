#pragma once

#include "history/HistoryRecord.h"

#include <QDateTime>
#include <QList>

// Which kept scans to let go, so the history stays small but still reaches back a year: every
// scan of the last week, then the newest of each calendar week, after three months the newest of
// each calendar month, nothing older than a year, and at most `kept` of each kind.
namespace HistoryThinning {

inline constexpr int kept = 200;
inline constexpr int everyScanDays = 7;
inline constexpr int weeklyDays = 91;
inline constexpr int keptDays = 365;

struct Entry {
    qint64 id = 0;
    HistoryRecord::Kind kind = HistoryRecord::Kind::scan;
    QDateTime date;
};

// The ids of `entries` (any order, both kinds) to remove at `now`.
QList<qint64> surplus(QList<Entry> entries, const QDateTime& now);

}  // namespace HistoryThinning
