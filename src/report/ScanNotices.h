#pragma once

#include "actions/NoticeLog.h"
#include "actions/Notifier.h"
#include "report/ScanReport.h"

#include <QDate>
#include <QSettings>
#include <QList>

#include <optional>

// What a scan run with --notify tells the person: the space it found to review and, when the
// person asked for it, that the disk runs low. It only tells; nothing is selected or removed.
namespace ScanNotices {

// The notices for a finished scan: what it found (the categories' reviewable sizes), then the
// low-space warning when `disk` is known and below the warning's line.
QList<Notice> after(const ScanReport::Results& results, FreeSpaceWarning warning, const std::optional<DiskSpace>& disk);

// Shows each notice whose condition was not told `today` yet and notes it in `log`; a notice
// nothing showed stays due. Returns how many were shown.
int tell(const QList<Notice>& notices, const NoticeLog& log, const QDate& today, const Notifier::Delivery& delivery);

// What `dustlark-cli scan --notify` does after the scan of `home`: the person's warning line
// from `settings`, the disk of `home`, the log in the app's data folder, the session's bus.
void tellAfterScan(const ScanReport::Results& results, const QString& home, QSettings* settings);

}  // namespace ScanNotices
