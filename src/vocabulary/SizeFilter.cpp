#include "vocabulary/SizeFilter.h"

#include <QCoreApplication>

namespace SizeFilters {

const std::array<SizeFilter, 4>& allCases()
{
    static const std::array<SizeFilter, 4> cases = {
        SizeFilter::all, SizeFilter::tenMB, SizeFilter::hundredMB, SizeFilter::oneGB,
    };
    return cases;
}

int rawValue(SizeFilter filter)
{
    return static_cast<int>(filter);
}

SizeFilter fromRawValue(int raw)
{
    for (SizeFilter filter : allCases()) {
        if (rawValue(filter) == raw)
            return filter;
    }
    return SizeFilter::all;
}

qint64 minimumBytes(SizeFilter filter)
{
    return qint64(rawValue(filter)) * 1'000'000;
}

QString title(SizeFilter filter)
{
    switch (filter) {
    //: Size filter menu: show rows of every size
    case SizeFilter::all: return QCoreApplication::translate("SizeFilter", "All Sizes");
    //: Size filter menu: show rows of 10 megabytes or more
    case SizeFilter::tenMB: return QCoreApplication::translate("SizeFilter", "10 MB+");
    //: Size filter menu: show rows of 100 megabytes or more
    case SizeFilter::hundredMB: return QCoreApplication::translate("SizeFilter", "100 MB+");
    //: Size filter menu: show rows of 1 gigabyte or more
    case SizeFilter::oneGB: return QCoreApplication::translate("SizeFilter", "1 GB+");
    }
    return {};
}

}  // namespace SizeFilters
