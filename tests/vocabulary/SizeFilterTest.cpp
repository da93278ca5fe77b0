#include "vocabulary/SizeFilter.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    int raw;
    SizeFilter filter;
    qint64 minimum;
    const char* title;
};

TEST(SizeFilter, RawValuesThresholdsAndTitlesAndUnknownValuesShowEverySize)
{
    const Row rows[] = {
        {0, SizeFilter::all, 0, "All Sizes"},
        {10, SizeFilter::tenMB, 10'000'000, "10 MB+"},
        {100, SizeFilter::hundredMB, 100'000'000, "100 MB+"},
        {1000, SizeFilter::oneGB, 1'000'000'000, "1 GB+"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(SizeFilters::fromRawValue(row.raw), row.filter);
        EXPECT_EQ(SizeFilters::rawValue(row.filter), row.raw);
        EXPECT_EQ(SizeFilters::minimumBytes(row.filter), row.minimum);
        EXPECT_EQ(SizeFilters::title(row.filter), QString::fromUtf8(row.title));
    }
    for (int raw : {-10, 1, 50, 1001, 1'000'000})
        EXPECT_EQ(SizeFilters::fromRawValue(raw), SizeFilter::all) << raw;
}

}  // namespace
