#include "vocabulary/FreeSpaceWarning.h"

#include <QCoreApplication>

namespace FreeSpaceWarnings {

const std::array<FreeSpaceWarning, 5>& allCases()
{
    static const std::array<FreeSpaceWarning, 5> cases{FreeSpaceWarning::off, FreeSpaceWarning::fivePercent,
                                                       FreeSpaceWarning::tenPercent, FreeSpaceWarning::twentyGB,
                                                       FreeSpaceWarning::fiftyGB};
    return cases;
}

QString rawValue(FreeSpaceWarning warning)
{
    switch (warning) {
    case FreeSpaceWarning::off: return QStringLiteral("off");
    case FreeSpaceWarning::fivePercent: return QStringLiteral("5%");
    case FreeSpaceWarning::tenPercent: return QStringLiteral("10%");
    case FreeSpaceWarning::twentyGB: return QStringLiteral("20GB");
    case FreeSpaceWarning::fiftyGB: return QStringLiteral("50GB");
    }
    return {};
}

FreeSpaceWarning fromRawValue(const QString& raw)
{
    for (FreeSpaceWarning warning : allCases()) {
        if (rawValue(warning) == raw)
            return warning;
    }
    return FreeSpaceWarning::off;
}

bool isLow(FreeSpaceWarning warning, qint64 available, qint64 total)
{
    if (total <= 0)
        return false;
    constexpr qint64 gigabyte = 1'000'000'000;
    switch (warning) {
    case FreeSpaceWarning::off: return false;
    // Multiplied, not divided: a 5% line of a disk whose size is not a multiple of 20 stays exact.
    case FreeSpaceWarning::fivePercent: return available * 100 < total * 5;
    case FreeSpaceWarning::tenPercent: return available * 100 < total * 10;
    case FreeSpaceWarning::twentyGB: return available < 20 * gigabyte;
    case FreeSpaceWarning::fiftyGB: return available < 50 * gigabyte;
    }
    return false;
}

QString title(FreeSpaceWarning warning)
{
    switch (warning) {
    //: Settings, "Warn me when free space falls below": never warn
    case FreeSpaceWarning::off: return QCoreApplication::translate("FreeSpaceWarning", "Off");
    //: Settings, "Warn me when free space falls below": 5 percent of the disk
    case FreeSpaceWarning::fivePercent: return QCoreApplication::translate("FreeSpaceWarning", "5% of the disk");
    //: Settings, "Warn me when free space falls below": 10 percent of the disk
    case FreeSpaceWarning::tenPercent: return QCoreApplication::translate("FreeSpaceWarning", "10% of the disk");
    //: Settings, "Warn me when free space falls below": 20 gigabytes
    case FreeSpaceWarning::twentyGB: return QCoreApplication::translate("FreeSpaceWarning", "20 GB");
    //: Settings, "Warn me when free space falls below": 50 gigabytes
    case FreeSpaceWarning::fiftyGB: return QCoreApplication::translate("FreeSpaceWarning", "50 GB");
    }
    return {};
}

}  // namespace FreeSpaceWarnings
