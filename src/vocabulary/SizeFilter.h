#pragma once

#include <QString>

#include <array>

// The size filter of the lists. The raw value (stored under "sizeFilter") is the threshold in
// megabytes; 0 shows every size.
enum class SizeFilter : int { all = 0, tenMB = 10, hundredMB = 100, oneGB = 1000 };

namespace SizeFilters {

const std::array<SizeFilter, 4>& allCases();

int rawValue(SizeFilter filter);
// Any raw value that is not a case reads as `all`, so a stray preference hides nothing.
SizeFilter fromRawValue(int raw);

// The smallest item size the filter keeps, in decimal bytes (10 MB = 10,000,000 bytes).
qint64 minimumBytes(SizeFilter filter);
// The menu title ("100 MB+").
QString title(SizeFilter filter);

}  // namespace SizeFilters
