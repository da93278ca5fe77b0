#pragma once

#include "history/HistoryRecord.h"
#include "report/ReportOptions.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QList>

#include <optional>

// The report tool's view of the scan history: the kept scans, or what grew since an earlier
// one; and the one place where `scan --record` and `storage --record` add to it.
namespace HistoryReport {

// "last" is absent (the scan before the newest); a date is the start of that day, local time;
// a date with a time is that moment. False with a sentence in `error` for anything else.
bool parseSince(const QString& text, std::optional<QDateTime>* since, QString* error);

QJsonObject listToJson(const QList<HistoryRecord>& newestFirst);
QByteArray listToText(const QList<HistoryRecord>& newestFirst);

// Compares the scans and the storage analyses kept in `newestFirst` (folders filled in for the
// storage analyses compared) as HistoryGrowth::pair picks them.
QJsonObject growthToJson(const QList<HistoryRecord>& newestFirst, const std::optional<QDateTime>& since);
QByteArray growthToText(const QList<HistoryRecord>& newestFirst, const std::optional<QDateTime>& since);

// `history [--since ...] [--json]` over the file at `path`; returns the exit status.
int run(const ReportOptions& options, const QString& path);

// Adds `record` to the history at `path`; notes and a failure go to stderr, never the exit status.
void record(const HistoryRecord& record, const QString& path);

}  // namespace HistoryReport
