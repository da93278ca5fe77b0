#include "format/RelativeDate.h"

#include <QTimeZone>

#include <gtest/gtest.h>

TEST(RelativeDate, WordsForEachDistance)
{
    const QDateTime now(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC);
    const std::pair<QDateTime, const char*> cases[] = {
        {now, "just now"},
        {now.addSecs(30), "just now"},  // a clock a little ahead never reads as the future
        {now.addSecs(-59), "just now"},
        {now.addSecs(-60), "1 minute ago"},
        {now.addSecs(-150), "2 minutes ago"},
        {now.addSecs(-3600), "1 hour ago"},
        {now.addSecs(-5 * 3600), "5 hours ago"},
        {now.addDays(-1), "yesterday"},
        {now.addDays(-3), "3 days ago"},
        {now.addDays(-7), "last week"},
        {now.addDays(-20), "2 weeks ago"},
        {now.addMonths(-1), "last month"},
        {now.addMonths(-3), "3 months ago"},
        {now.addMonths(-13), "last year"},
        {now.addYears(-4), "4 years ago"},
    };
    for (const auto& [date, text] : cases)
        EXPECT_EQ(RelativeDate::format(date, now), QString::fromLatin1(text)) << text;
}

// A detail line made at scan time reads its date relative to when it is shown.
TEST(RelativeDate, MarkersInATextAreWordedWhenShown)
{
    const QDateTime scanned(QDate(2024, 5, 1), QTime(9, 0), QTimeZone::utc());
    const QString detail = QStringLiteral("shop · changed %1 · %2 files").arg(RelativeDate::marker(scanned.addSecs(-60)), QStringLiteral("12"));
    EXPECT_EQ(RelativeDate::expand(detail, scanned), "shop · changed 1 minute ago · 12 files");
    EXPECT_EQ(RelativeDate::expand(detail, scanned.addSecs(3 * 3600)), "shop · changed 3 hours ago · 12 files");
    EXPECT_EQ(RelativeDate::expand(QStringLiteral("no dates here"), scanned), "no dates here");
}
