#pragma once

#include "actions/NoticeLog.h"
#include "actions/Notifier.h"
#include "report/ScanReport.h"

#include <QDate>
#include <QList>
#include <QProcessEnvironment>
#include <QSettings>
#include <QStringList>

#include <chrono>
#include <optional>

// What a scan run with --notify tells the person: the space it found to review and, when the
// person asked for it, that the disk runs low. It only tells; nothing is selected or removed.
namespace ScanNotices {

// How long the report tool stays after telling, to open the app when its notification is
// clicked. The desktop tells a click only to the process that showed the notification, and
// GNOME takes an app's notifications away as soon as that process ends; the schedule runs
// within the hour after the person starts the day, so an hour covers someone at the desk.
// After it the notifications are taken back: their click would reach no one.
constexpr std::chrono::minutes clickPatience{60};

// The notices for a finished scan: what it found (the categories' reviewable sizes), then the
// low-space warning when `disk` is known and below the warning's line.
QList<Notice> after(const ScanReport::Results& results, FreeSpaceWarning warning, const std::optional<DiskSpace>& disk);

// Shows each notice whose condition was not told `today` yet and notes it in `log`; a notice
// nothing showed stays due. Returns the ids of those shown (Notifier::send).
QList<quint32> tell(const QList<Notice>& notices, const NoticeLog& log, const QDate& today, const Notifier::Delivery& delivery);

// The command line that opens the app at `app` on the Overview. Run by a systemd service (the
// schedule), it asks the user manager to start the app as a unit of its own, so it neither
// inherits the scan's low priority nor ends when the scan's service does.
QStringList openAppCommand(const QString& app, const QProcessEnvironment& environment);

// What `dustlark-cli scan --notify` does after the scan of `home`: the person's warning line
// from `settings`, the disk of `home`, the log in the app's data folder, the session's bus;
// then, on Linux, it waits up to `clickPatience` and opens the app on the Overview when a
// notification it showed is clicked. It returns as soon as every one was closed.
void tellAfterScan(const ScanReport::Results& results, const QString& home, QSettings* settings);

}  // namespace ScanNotices
