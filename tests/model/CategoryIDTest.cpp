#include "model/CategoryID.h"

#include <gtest/gtest.h>

TEST(CategoryID, RawValuesRoundTripInDeclarationOrder)
{
    const auto& all = Categories::allCases();
    ASSERT_EQ(all.size(), 22u);
    EXPECT_EQ(Categories::rawValue(all.front()), "projects");
    EXPECT_EQ(Categories::rawValue(all.back()), "trash");
    for (CategoryID category : all)
        EXPECT_EQ(Categories::fromRawValue(Categories::rawValue(category)), category);
}
