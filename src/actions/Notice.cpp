#include "actions/Notice.h"

#include "format/ByteCount.h"

#include <QCoreApplication>

#include <algorithm>

std::optional<Notice> Notice::foundToReview(const QList<std::pair<CategoryID, qint64>>& categorySizes)
{
    QList<std::pair<CategoryID, qint64>> found;
    qint64 total = 0;
    for (const auto& [category, size] : categorySizes) {
        if (size <= 0)
            continue;
        found.append({category, size});
        total += size;
    }
    if (total < foundWorthTelling)
        return std::nullopt;
    // Stable, so equal sizes keep the order categories are listed in everywhere else.
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    QStringList largest;
    for (qsizetype i = 0; i < std::min<qsizetype>(2, found.size()); ++i)
        //: Part of a notification: a category and its size, e.g. "Docker 3.2 GB"
        largest.append(QCoreApplication::translate("Notice", "%1 %2").arg(Categories::title(found[i].first), ByteCount::format(found[i].second)));
    Notice notice;
    notice.condition = Condition::foundToReview;
    //: Title of the notification after a scheduled scan
    notice.summary = QCoreApplication::translate("Notice", "Space you can review");
    //: Notification after a scheduled scan; %1 is the total size, %2 the largest categories with their sizes, joined by ", "
    notice.body = QCoreApplication::translate("Notice", "Dustlark found %1 you can review: %2")
                      .arg(ByteCount::format(total), largest.join(QStringLiteral(", ")));
    return notice;
}

std::optional<Notice> Notice::lowSpace(FreeSpaceWarning warning, const DiskSpace& disk)
{
    if (!FreeSpaceWarnings::isLow(warning, disk.available, disk.total))
        return std::nullopt;
    const int percent = static_cast<int>(disk.available * 100 / disk.total);
    Notice notice;
    notice.condition = Condition::lowSpace;
    //: Title of the notification when the disk runs low
    notice.summary = QCoreApplication::translate("Notice", "Your disk is almost full");
    //: Notification when the disk runs low; %1 is the free space ("8.2 GB"), %2 the whole percent of the disk it is
    notice.body = QCoreApplication::translate("Notice", "Only %1 (%2%) is left on your disk. Dustlark can show you what takes the space.")
                      .arg(ByteCount::format(disk.available))
                      .arg(percent);
    return notice;
}

QString Notice::conditionKey(Condition condition)
{
    switch (condition) {
    case Condition::foundToReview: return QStringLiteral("foundToReview");
    case Condition::lowSpace: return QStringLiteral("lowSpace");
    }
    return {};
}
