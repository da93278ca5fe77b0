#include "format/RelativeDate.h"

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
