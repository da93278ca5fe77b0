#include "vocabulary/JsonDate.h"
#include "vocabulary/SafeItemInfo.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

QDateTime utc(int year, int month, int day, int msecOfDay = 0)
{
    return QDateTime(QDate(year, month, day), QTime(0, 0), Qt::UTC).addMSecs(msecOfDay);
}

QJsonObject parsed(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

TEST(JsonDate, CountsSecondsFromTheStartOf2001)
{
    EXPECT_EQ(JsonDate::encode(utc(1970, 1, 1)).toDouble(), -978307200.0);
    EXPECT_EQ(JsonDate::encode(utc(2001, 1, 2, 500)).toDouble(), 86400.5);
    const QDateTime local = utc(2024, 3, 9, 12345).toLocalTime();
    EXPECT_EQ(JsonDate::decode(JsonDate::encode(local)), local);
    EXPECT_FALSE(JsonDate::decode(QJsonValue(QStringLiteral("2024-01-01T00:00:00Z"))));
    EXPECT_FALSE(JsonDate::decode(QJsonValue(1e300)));
}

TEST(SafeItemInfo, ReadsWhatTheMacBuildWrites)
{
    const auto info = SafeItemInfo::fromJson(parsed(R"({"title": "Xcode.app", "category": "apps",
        "detail": "Version 15.4", "path": "/Applications/Xcode.app",
        "paths": ["/Applications/Xcode.app", "/Users/ada/Library/Caches/com.apple.dt.Xcode"],
        "size": 12884901888, "added": 736257600.5})"));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->size, 12884901888LL);
    EXPECT_EQ(info->added, utc(2024, 5, 1, 12 * 3600 * 1000 + 500));
    EXPECT_EQ(info->protectedPaths().size(), 2);
    EXPECT_EQ(SafeItemInfo::fromJson(info->toJson()), info);
}

TEST(SafeItemInfo, OptionalPathsMayBeAbsentOrNullButNotWrongTyped)
{
    const auto bare = SafeItemInfo::fromJson(parsed(
        R"({"title": "Build cache", "category": "newerCategory", "detail": "", "size": 0, "added": 0, "path": null})"));
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->categoryID());
    EXPECT_TRUE(bare->protectedPaths().isEmpty());
    EXPECT_FALSE(bare->toJson().contains(QStringLiteral("path")));

    const char* broken[] = {
        R"({"title": "T", "category": "apps", "detail": "", "size": 0, "added": 0, "paths": ["/a", 3]})",
        R"({"title": "T", "category": "apps", "detail": "", "size": 0, "added": 0, "path": 7})",
        R"({"title": "T", "category": "apps", "detail": "", "size": 1.5, "added": 0})",
        R"({"title": "T", "category": "apps", "size": 0, "added": 0})",
    };
    for (const char* json : broken)
        EXPECT_FALSE(SafeItemInfo::fromJson(parsed(json))) << json;
}

}  // namespace
