#pragma once

#include "actions/DiskSpace.h"
#include "vocabulary/CategoryID.h"
#include "vocabulary/FreeSpaceWarning.h"

#include <QList>
#include <QString>

#include <optional>
#include <utility>

// What Dustlark tells the person without being asked: that a background scan found space to
// review, or that the disk runs low. Never more than a sentence; it suggests, it never acts.
struct Notice {
    // Notices of one condition are shown at most once a day (NoticeLog).
    enum class Condition { foundToReview, lowSpace };

    Condition condition = Condition::foundToReview;
    QString summary;
    QString body;

    bool operator==(const Notice&) const = default;

    // Less than this to review in all is not worth interrupting anyone for: a gigabyte is
    // about where removing it starts to show on a disk, and below it every scan of a used
    // home would find something (a few caches always grow back).
    static constexpr qint64 foundWorthTelling = 1'000'000'000;

    // "Dustlark found 12.4 GB you can review: Project Builds 8.1 GB, Docker 3.2 GB": the total
    // of every category and the two largest by name. Absent when the total is below
    // `foundWorthTelling`.
    static std::optional<Notice> foundToReview(const QList<std::pair<CategoryID, qint64>>& categorySizes);
    // "Only 8.2 GB (4%) is left on your disk.": absent unless the warning's line is crossed.
    static std::optional<Notice> lowSpace(FreeSpaceWarning warning, const DiskSpace& disk);

    // The stable name of a condition in the log ("foundToReview", "lowSpace").
    static QString conditionKey(Condition condition);
};
