#include "format/ByteCount.h"

#include <gtest/gtest.h>
#include <limits>

TEST(ByteCount, DecimalFileSizeStyle)
{
    const std::pair<qint64, const char*> cases[] = {
        {0, "Zero KB"},
        {1, "1 byte"},
        {999, "999 bytes"},
        {1000, "1 KB"},
        {345'000, "345 KB"},
        {999'499, "999 KB"},
        {999'999, "1 MB"},  // rounds into the next unit, never "1000 KB"
        {1'000'000, "1 MB"},
        {1'250'000, "1.3 MB"},
        {200'000'000, "200 MB"},
        {1'200'000'000, "1.2 GB"},
        {1'234'000'000, "1.23 GB"},
        {10'000'000'000'000, "10 TB"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(ByteCount::format(bytes), QString::fromLatin1(text)) << bytes;
}

TEST(ByteCount, NegativeAndExtremeSizesKeepTheirSignAndUnit)
{
    const std::pair<qint64, const char*> cases[] = {
        {-1, "-1 byte"},
        {-999, "-999 bytes"},
        {-345'000, "-345 KB"},
        {std::numeric_limits<qint64>::max(), "9.22 EB"},
        // The one value whose magnitude a 64-bit integer cannot hold: a garbled tool size ends up here.
        {std::numeric_limits<qint64>::min(), "-9.22 EB"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(ByteCount::format(bytes), QString::fromLatin1(text)) << bytes;
}
