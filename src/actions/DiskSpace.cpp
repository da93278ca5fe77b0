#include "actions/DiskSpace.h"

#include "platform/Platform.h"

std::optional<DiskSpace> DiskSpace::current(const QString& home)
{
    const std::optional<qint64> total = Platform::totalCapacity(home);
    const std::optional<qint64> available = Platform::availableCapacityForImportantUsage(home);
    if (!total || !available)
        return std::nullopt;
    return DiskSpace{*total, *available};
}
