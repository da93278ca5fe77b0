#include "report/ReportOptions.h"
#include "report/ScanReport.h"

#include <QJsonArray>

#include <gtest/gtest.h>

TEST(ScanReport, EveryCategoryInOrderWithNullOptionals)
{
    FileTarget target;
    target.path = "/h/.npm/_cacache";
    CleanupItem item;
    item.id = target.path;
    item.category = CategoryID::packageCaches;
    item.title = "npm cache";
    item.size = 2'000'000;
    item.removal = Removal::trash({target});
    ScanReport::Results results;
    results[CategoryID::packageCaches] = {CategoryResult::State::done, {item}, {"a note"}, std::nullopt};

    const QJsonArray categories = ScanReport::toJson(results, "/h")["categories"].toArray();
    ASSERT_EQ(categories.size(), 22);
    for (int i = 0; i < 22; ++i)
        EXPECT_EQ(categories[i]["id"].toString(), Categories::rawValue(Categories::allCases()[i]));
    EXPECT_EQ(categories[0]["title"].toString(), "Project Builds");

    const QJsonObject caches = categories[5].toObject();
    EXPECT_EQ(caches["state"].toString(), "done");
    EXPECT_EQ(caches["totalSize"].toDouble(), 2'000'000);
    EXPECT_TRUE(caches["summary"].isNull());
    const QJsonObject row = caches["items"].toArray().at(0).toObject();
    EXPECT_EQ(row["safety"].toString(), "safe");
    EXPECT_EQ(row["paths"].toArray().at(0).toString(), "/h/.npm/_cacache");
    for (const char* key : {"badge", "lockedReason", "date", "projectPath", "duplicateGroup"})
        EXPECT_TRUE(row[key].isNull()) << key;
    EXPECT_FALSE(row["isOldestCopy"].toBool());
}

TEST(ReportOptions, ParsesRepeatedOptionsAndRejectsBadInput)
{
    QString error;
    const auto options = ReportOptions::parse({"scan", "--home", "/h", "--root", "/a", "--root", "/b",
                                               "--category", "logs", "--json"}, &error);
    ASSERT_TRUE(options.has_value()) << error.toStdString();
    EXPECT_EQ(options->home, "/h");
    EXPECT_EQ(options->roots, QStringList({"/a", "/b"}));
    EXPECT_EQ(options->categories, QList<CategoryID>{CategoryID::logs});
    EXPECT_TRUE(options->json);

    EXPECT_FALSE(ReportOptions::parse({"scan", "--category", "Logs"}, &error));
    EXPECT_TRUE(error.contains("Logs"));
}
