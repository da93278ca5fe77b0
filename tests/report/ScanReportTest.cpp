#include "report/ReportOptions.h"
#include "report/ScanReport.h"
#include "format/WholeNumber.h"

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
    results[CategoryID::packageCaches] = {CategoryResult::State::done, {item}, {"a note"}, std::nullopt, {}};

    EXPECT_EQ(ScanReport::toJson(results, "/h")["version"].toInt(), 1);
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

// Two rows of one title are told apart by their badges; counts carry the thousands separator
// also in the plain C locale the tests run in.
TEST(ScanReport, TheTableShowsBadgesAndCountsWithSeparators)
{
    CleanupItem web;
    web.id = "/h/code/web/node_modules";
    web.title = "node_modules";
    web.badge = "web";
    CleanupItem shop = web;
    shop.id = "/h/code/shop/node_modules";
    shop.badge = "shop";
    ScanReport::Results results;
    results[CategoryID::projects] = {CategoryResult::State::done, {web, shop}, {}, std::nullopt, {}};
    const QString text = QString::fromUtf8(ScanReport::toText(results, "/h"));
    EXPECT_TRUE(text.contains("node_modules  (web)\n")) << qPrintable(text);
    EXPECT_TRUE(text.contains("node_modules  (shop)\n")) << qPrintable(text);
    EXPECT_TRUE(text.startsWith("Project Builds  (done, 2 items, ")) << qPrintable(text);
    EXPECT_EQ(WholeNumber::format(1'234'567), "1,234,567");
}

TEST(ReportOptions, ParsesRepeatedOptionsAndRejectsBadInput)
{
    QString error;
    const auto options = ReportOptions::parse({"scan", "--home", "/tmp", "--root", "/", "--root", "/usr",
                                               "--category", "logs", "--json"}, &error);
    ASSERT_TRUE(options.has_value()) << error.toStdString();
    EXPECT_EQ(options->home, "/tmp");
    EXPECT_EQ(options->roots, QStringList({"/", "/usr"}));
    EXPECT_EQ(options->categories, QList<CategoryID>{CategoryID::logs});
    EXPECT_TRUE(options->json);

    EXPECT_FALSE(ReportOptions::parse({"scan", "--category", "Logs"}, &error));
    EXPECT_TRUE(error.contains("Logs"));
}
