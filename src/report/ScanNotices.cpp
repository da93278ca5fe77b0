#include "report/ScanNotices.h"

#include "machinery/DetachedLaunch.h"
#include "model/SettingsStore.h"
#include "vocabulary/SystemPlaces.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QHash>
#include <QTimer>

namespace ScanNotices {

namespace {

using Answers = QHash<quint32, Platform::NotificationAnswer>;

// Clicked: one of `shown` was clicked; false: all were closed; absent: still waiting.
std::optional<bool> clickedAmong(const QList<quint32>& shown, const Answers& answers)
{
    bool allClosed = true;
    for (quint32 id : shown) {
        const auto answer = answers.constFind(id);
        if (answer == answers.constEnd())
            allClosed = false;
        else if (*answer == Platform::NotificationAnswer::clicked)
            return true;
    }
    return allClosed ? std::optional(false) : std::nullopt;
}

// Waits for the answers `answers` collects; takes back what is still showing when time is up.
bool awaitClick(const QList<quint32>& shown, const Answers& answers, QEventLoop& loop, const Notifier::Delivery& delivery)
{
    const QDeadlineTimer deadline(clickPatience);
    QTimer timeUp;
    timeUp.setSingleShot(true);
    QObject::connect(&timeUp, &QTimer::timeout, &loop, &QEventLoop::quit);
    timeUp.start(clickPatience);
    while (!clickedAmong(shown, answers) && !deadline.hasExpired())
        loop.exec();
    for (quint32 id : shown) {
        if (!answers.contains(id))
            Platform::closeDesktopNotification(delivery.busAddress, id);
    }
    return clickedAmong(shown, answers).value_or(false);
}

}  // namespace

QList<Notice> after(const ScanReport::Results& results, FreeSpaceWarning warning, const std::optional<DiskSpace>& disk)
{
    QList<std::pair<CategoryID, qint64>> sizes;
    for (const auto& [category, result] : results)
        sizes.append({category, result.totalSize()});
    QList<Notice> notices;
    if (auto found = Notice::foundToReview(sizes))
        notices.append(*found);
    if (disk) {
        if (auto low = Notice::lowSpace(warning, *disk))
            notices.append(*low);
    }
    return notices;
}

QList<quint32> tell(const QList<Notice>& notices, const NoticeLog& log, const QDate& today, const Notifier::Delivery& delivery)
{
    QList<quint32> shown;
    for (const Notice& notice : notices) {
        if (!log.isDue(notice.condition, today))
            continue;
        const std::optional<quint32> id = Notifier::send(notice, delivery);
        if (!id)
            continue;
        log.record(notice.condition, today);
        shown.append(*id);
    }
    return shown;
}

QStringList openAppCommand(const QString& app, const QProcessEnvironment& environment)
{
    const QStringList command{app, QStringLiteral("--overview")};
    // systemd gives every process it starts for a unit the unit's invocation id.
    if (!environment.contains(QStringLiteral("INVOCATION_ID")))
        return command;
    return QStringList{QStringLiteral("/usr/bin/systemd-run"), QStringLiteral("--user"), QStringLiteral("--collect"),
                       QStringLiteral("--quiet"), QStringLiteral("--")}
        + command;
}

void tellAfterScan(const ScanReport::Results& results, const QString& home, QSettings* settings)
{
    const SettingsStore store(settings, home);
    const NoticeLog log(SystemPlaces::appDataFolder());
    const Notifier::Delivery delivery;
    // Listening before telling, so no answer can come before the ear is there.
    QObject listening;
    QEventLoop loop;
    Answers answers;
    const bool hears = Platform::watchDesktopNotifications(delivery.busAddress, &listening,
                                                           [&](quint32 id, Platform::NotificationAnswer answer) {
                                                               // A server closes what was clicked right after telling the click.
                                                               if (answer == Platform::NotificationAnswer::clicked || !answers.contains(id))
                                                                   answers.insert(id, answer);
                                                               loop.quit();
                                                           });
    const QList<quint32> shown = tell(after(results, store.freeSpaceWarning(), DiskSpace::current(home)), log, QDate::currentDate(), delivery);
    if (!hears || shown.isEmpty() || !awaitClick(shown, answers, loop, delivery))
        return;
    const QStringList command = openAppCommand(QCoreApplication::applicationDirPath() + QStringLiteral("/dustlark"),
                                               QProcessEnvironment::systemEnvironment());
    DetachedLaunch::start(command.first(), command.mid(1));
}

}  // namespace ScanNotices
