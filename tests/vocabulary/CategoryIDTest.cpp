#include "vocabulary/CategoryID.h"

#include <gtest/gtest.h>

TEST(CategoryID, RawValuesRoundTripExactlyInDeclarationOrder)
{
    const auto& all = Categories::allCases();
    const QStringList expected = {
        "projects", "worktrees", "xcode", "simulators", "android", "packageCaches", "editors",
        "docker", "aiModels", "aiAgents", "apps", "leftovers", "appCaches", "logs",
        "browserCaches", "installers", "oldDownloads", "temporary", "largeFiles", "duplicates",
        "devices", "trash"};
    ASSERT_EQ(all.size(), size_t(expected.size()));
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(Categories::rawValue(all[i]), expected[static_cast<int>(i)]);
        EXPECT_EQ(Categories::fromRawValue(expected[static_cast<int>(i)]), all[i]);
    }
    for (const char* wrong : {"Projects", "projects ", "", "aimodels"})
        EXPECT_FALSE(Categories::fromRawValue(QString::fromLatin1(wrong)).has_value()) << wrong;
}

TEST(CategoryID, GroupsSplitAfterTheTenthCase)
{
    const QList<CategoryID> developer = CleanerGroups::categories(CleanerGroup::developer);
    const QList<CategoryID> everyday = CleanerGroups::categories(CleanerGroup::everyday);
    ASSERT_EQ(developer.size(), 10);
    EXPECT_EQ(developer.last(), CategoryID::aiAgents);
    EXPECT_EQ(everyday.first(), CategoryID::apps);
    EXPECT_EQ(developer.size() + everyday.size(), qsizetype(Categories::allCases().size()));
}

TEST(CategoryID, EveryCaseHasItsTextsWithTheirNumbersFilledIn)
{
    EXPECT_EQ(Categories::explanation(CategoryID::largeFiles),
              "Files of 200 MB or more in your home folder. Review each one before you select it.");
    for (CategoryID category : Categories::allCases()) {
        EXPECT_FALSE(Categories::title(category).isEmpty());
        EXPECT_FALSE(Categories::systemImage(category).isEmpty());
        EXPECT_FALSE(Categories::explanation(category).isEmpty());
        EXPECT_FALSE(Categories::explanation(category).contains('%')) << Categories::rawValue(category).toStdString();
    }
}
