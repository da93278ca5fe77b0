#include "vocabulary/ScanSchedule.h"

#include <QCoreApplication>

namespace ScanSchedules {

const std::array<ScanSchedule, 3>& allCases()
{
    static const std::array<ScanSchedule, 3> cases{ScanSchedule::never, ScanSchedule::weekly, ScanSchedule::monthly};
    return cases;
}

QString rawValue(ScanSchedule schedule)
{
    switch (schedule) {
    case ScanSchedule::never: return QStringLiteral("never");
    case ScanSchedule::weekly: return QStringLiteral("weekly");
    case ScanSchedule::monthly: return QStringLiteral("monthly");
    }
    return {};
}

ScanSchedule fromRawValue(const QString& raw)
{
    for (ScanSchedule schedule : allCases()) {
        if (rawValue(schedule) == raw)
            return schedule;
    }
    return ScanSchedule::never;
}

QString title(ScanSchedule schedule)
{
    switch (schedule) {
    //: Settings, "Scan for me": no scheduled scan
    case ScanSchedule::never: return QCoreApplication::translate("ScanSchedule", "Never");
    //: Settings, "Scan for me": a background scan once a week
    case ScanSchedule::weekly: return QCoreApplication::translate("ScanSchedule", "Every week");
    //: Settings, "Scan for me": a background scan once a month
    case ScanSchedule::monthly: return QCoreApplication::translate("ScanSchedule", "Every month");
    }
    return {};
}

}  // namespace ScanSchedules
