#pragma once

#include "history/HistoryRecord.h"

#include <QDateTime>
#include <QList>

#include <optional>

// What grew between two kept scans of one kind: per category, bucket and folder, largest growth
// first. Something present in only one of the two scans counts as 0 in the other.
namespace HistoryGrowth {

struct Change {
    QString name;    // category or bucket raw value; for a folder its bucket
    QString path;    // a folder's path; empty otherwise
    qint64 before = 0;
    qint64 after = 0;
    qint64 growth() const { return after - before; }
    bool operator==(const Change&) const = default;
};

// Largest growth first; unchanged entries are left out.
QList<Change> totals(const QMap<QString, HistoryRecord::Tally>& before, const QMap<QString, HistoryRecord::Tally>& after);
QList<Change> folders(const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally>& before,
                      const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally>& after);

// The pair of scans of `kind` to compare in `newestFirst` (a store's listing): the newest, and
// the one before it (`since` absent) or the newest taken at or before `since` (the oldest kept
// one when all are later). Absent when there are fewer than two scans of that kind.
struct Pair {
    HistoryRecord before;
    HistoryRecord after;
};
std::optional<Pair> pair(const QList<HistoryRecord>& newestFirst, HistoryRecord::Kind kind,
                         const std::optional<QDateTime>& since);

// A scan's change of disk used when both know it, else of bytes found to review.
qint64 headline(const Pair& pair);

}  // namespace HistoryGrowth
