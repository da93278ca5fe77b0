#include "report/ScanNotices.h"

#include "model/SettingsStore.h"
#include "vocabulary/SystemPlaces.h"


namespace ScanNotices {

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

int tell(const QList<Notice>& notices, const NoticeLog& log, const QDate& today, const Notifier::Delivery& delivery)
{
    int shown = 0;
    for (const Notice& notice : notices) {
        if (!log.isDue(notice.condition, today) || !Notifier::send(notice, delivery))
            continue;
        log.record(notice.condition, today);
        ++shown;
    }
    return shown;
}

void tellAfterScan(const ScanReport::Results& results, const QString& home, QSettings* settings)
{
    const SettingsStore store(settings, home);
    const NoticeLog log(SystemPlaces::appDataFolder());
    tell(after(results, store.freeSpaceWarning(), DiskSpace::current(home)), log, QDate::currentDate(), Notifier::Delivery{});
}

}  // namespace ScanNotices
