#include "model/CategoryID.h"

#include <gtest/gtest.h>

TEST(CategoryID, RawValuesRoundTripInDeclarationOrder)
{
    const auto& all = Categories::allCases();
    ASSERT_EQ(all.size(), 22u);
    const QStringList expected = {
        "projects", "worktrees", "xcode", "simulators", "android", "packageCaches", "editors",
        "docker", "aiModels", "aiAgents", "apps", "leftovers", "appCaches", "logs",
        "browserCaches", "installers", "oldDownloads", "temporary", "largeFiles", "duplicates",
        "devices", "trash"};
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(Categories::rawValue(all[i]), expected[static_cast<int>(i)]);
        EXPECT_EQ(Categories::fromRawValue(expected[static_cast<int>(i)]), all[i]);
    }
}

TEST(CategoryID, RawValueParsingIsExactAndCaseSensitive)
{
    for (const char* wrong : {"Projects", "PROJECTS", "projects ", "", "aimodels", "trash2"})
        EXPECT_FALSE(Categories::fromRawValue(QString::fromLatin1(wrong)).has_value()) << wrong;
}

TEST(CategoryID, GroupsSplitAfterTheTenthCase)
{
    const QList<CategoryID> developer = CleanerGroups::categories(CleanerGroup::developer);
    const QList<CategoryID> everyday = CleanerGroups::categories(CleanerGroup::everyday);
    ASSERT_EQ(developer.size(), 10);
    ASSERT_EQ(everyday.size(), 12);
    EXPECT_EQ(developer.first(), CategoryID::projects);
    EXPECT_EQ(developer.last(), CategoryID::aiAgents);
    EXPECT_EQ(everyday.first(), CategoryID::apps);
    EXPECT_EQ(everyday.last(), CategoryID::trash);
    EXPECT_EQ(CleanerGroups::title(CleanerGroup::developer), "Developer");
    EXPECT_EQ(CleanerGroups::overviewTitle(CleanerGroup::everyday), "Everyday Cleaner");
}

TEST(CategoryID, TitlesAndSymbolsOfSampleCases)
{
    EXPECT_EQ(Categories::title(CategoryID::leftovers), "Removed Apps' Leftovers");
    EXPECT_EQ(Categories::title(CategoryID::devices), "iPhone & iPad");
    EXPECT_EQ(Categories::systemImage(CategoryID::editors), "chevron.left.forwardslash.chevron.right");
    EXPECT_EQ(Categories::systemImage(CategoryID::aiAgents), "sparkles.rectangle.stack");
    for (CategoryID category : Categories::allCases()) {
        EXPECT_FALSE(Categories::title(category).isEmpty());
        EXPECT_FALSE(Categories::systemImage(category).isEmpty());
        EXPECT_FALSE(Categories::explanation(category).isEmpty());
    }
}

TEST(CategoryID, ExplanationsCarryTheirNumbers)
{
    EXPECT_EQ(Categories::explanation(CategoryID::largeFiles),
              "Files of 200 MB or more in your home folder. Review each one before you select it.");
    EXPECT_EQ(Categories::explanation(CategoryID::oldDownloads),
              "Files and folders that have been in Downloads for 90 days or more. Installers and "
              "files of 200 MB+ are listed in their own categories.");
    EXPECT_TRUE(Categories::explanation(CategoryID::duplicates).startsWith("Files of 1 MB or more that have exact copies"));
    EXPECT_TRUE(Categories::explanation(CategoryID::leftovers).contains("anything changed in the last 30 days (something still uses it)."));
    for (CategoryID category : Categories::allCases())
        EXPECT_FALSE(Categories::explanation(category).contains('%')) << Categories::rawValue(category).toStdString();
}
