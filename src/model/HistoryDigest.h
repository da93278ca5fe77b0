#pragma once

#include "history/HistoryRecord.h"

#include <QDateTime>
#include <QList>

#include <optional>

// The history in the few words the Overview shows.
namespace HistoryDigest {

inline constexpr int categoriesNamed = 3;

// "+3.2 GB since 3 days ago: Project Builds +2.1 GB, Docker +900 MB": the change between the two
// newest full scans (disk used, else found to review) and the categories that grew most. Absent
// with fewer than two kept scans.
std::optional<QString> sinceLastScan(const QList<HistoryRecord>& newestFirst, const QDateTime& now);

// The title of a category or storage bucket kept by its raw value; the raw value itself when
// this build knows no such one (a file written by another version).
QString categoryTitle(const QString& raw);
QString bucketTitle(const QString& raw);

}  // namespace HistoryDigest
