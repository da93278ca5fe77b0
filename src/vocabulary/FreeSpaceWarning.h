#pragma once

#include <QString>

#include <array>
#include <optional>

// When the disk counts as running low: never, below a share of its size, or below a fixed
// amount. Stored under "freeSpaceWarning" as its raw value ("off", "5%", "10%", "20GB", "50GB").
enum class FreeSpaceWarning { off, fivePercent, tenPercent, twentyGB, fiftyGB };

namespace FreeSpaceWarnings {

const std::array<FreeSpaceWarning, 5>& allCases();

QString rawValue(FreeSpaceWarning warning);
// Anything else reads as `off`, so a stray preference never starts warning.
FreeSpaceWarning fromRawValue(const QString& raw);

// True when `available` bytes of a disk of `total` bytes are below the warning's line; never
// for `off` or a disk whose size is unknown (zero).
bool isLow(FreeSpaceWarning warning, qint64 available, qint64 total);

// The settings menu's title ("Below 10%", "Below 20 GB", "Off").
QString title(FreeSpaceWarning warning);

}  // namespace FreeSpaceWarnings
