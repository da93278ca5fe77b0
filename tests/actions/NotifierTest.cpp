// What Dustlark tells unasked: the texts, the once-a-day rule, and the delivery over a real
// private session bus to a notification service that records what it was asked to show.
#include "actions/NoticeLog.h"
#include "actions/Notifier.h"
#include "support/NotificationBus.h"
#include "support/TempTree.h"

#include <QFile>
#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

constexpr qint64 GB = 1'000'000'000;

TEST(NoticeTest, FoundToReviewNamesTheTotalAndTheTwoLargestCategories)
{
    const auto notice = Notice::foundToReview({{CategoryID::projects, 8'100'000'000},
                                               {CategoryID::logs, 1'100'000'000},
                                               {CategoryID::docker, 3'200'000'000},
                                               {CategoryID::trash, 0}});
    ASSERT_TRUE(notice);
    EXPECT_EQ(notice->condition, Notice::Condition::foundToReview);
    EXPECT_EQ(notice->body, "Dustlark found 12.4 GB you can review: Project Builds 8.1 GB, Docker 3.2 GB");

    const auto single = Notice::foundToReview({{CategoryID::docker, 0}, {CategoryID::logs, 2 * GB}});
    ASSERT_TRUE(single);
    EXPECT_EQ(single->body, "Dustlark found 2 GB you can review: Logs 2 GB");

    EXPECT_FALSE(Notice::foundToReview({{CategoryID::docker, 0}, {CategoryID::logs, 0}}));
    EXPECT_FALSE(Notice::foundToReview({}));
}

TEST(NoticeTest, LowSpaceWarnsOnlyBelowTheChosenLine)
{
    const qint64 total = 500 * GB;
    EXPECT_FALSE(Notice::lowSpace(FreeSpaceWarning::tenPercent, {total, 50 * GB}));  // exactly on the line
    const auto low = Notice::lowSpace(FreeSpaceWarning::tenPercent, {total, 50 * GB - 1});
    ASSERT_TRUE(low);
    EXPECT_EQ(low->condition, Notice::Condition::lowSpace);
    EXPECT_EQ(low->body, "Only 50 GB (9%) is left on your disk. Dustlark can show you what takes the space.");

    EXPECT_TRUE(Notice::lowSpace(FreeSpaceWarning::fivePercent, {total, 24 * GB}));
    EXPECT_FALSE(Notice::lowSpace(FreeSpaceWarning::fivePercent, {total, 25 * GB}));
    EXPECT_TRUE(Notice::lowSpace(FreeSpaceWarning::twentyGB, {total, 20 * GB - 1}));
    EXPECT_FALSE(Notice::lowSpace(FreeSpaceWarning::twentyGB, {total, 20 * GB}));
    EXPECT_TRUE(Notice::lowSpace(FreeSpaceWarning::fiftyGB, {total, 49 * GB}));
    // Off never warns, not even on a full disk; a disk of unknown size is never low.
    EXPECT_FALSE(Notice::lowSpace(FreeSpaceWarning::off, {total, 0}));
    EXPECT_FALSE(Notice::lowSpace(FreeSpaceWarning::fiftyGB, {0, 0}));
}

TEST(NoticeLogTest, EachConditionIsDueOnceADay)
{
    const TempTree tree;
    const NoticeLog log(tree.path("data/Dustlark"));  // made on the first record
    const QDate today(2026, 11, 26);
    EXPECT_TRUE(log.isDue(Notice::Condition::foundToReview, today));
    ASSERT_TRUE(log.record(Notice::Condition::foundToReview, today));

    EXPECT_FALSE(log.isDue(Notice::Condition::foundToReview, today));
    EXPECT_TRUE(log.isDue(Notice::Condition::lowSpace, today));
    EXPECT_TRUE(log.isDue(Notice::Condition::foundToReview, today.addDays(1)));

    // A second log on the same folder (the app beside the background scan) reads the same day.
    ASSERT_TRUE(NoticeLog(tree.path("data/Dustlark")).record(Notice::Condition::lowSpace, today));
    EXPECT_FALSE(log.isDue(Notice::Condition::lowSpace, today));
    EXPECT_FALSE(log.isDue(Notice::Condition::foundToReview, today));
}

TEST(NoticeLogTest, AnUnreadableLogCountsAsEmpty)
{
    const TempTree tree;
    const NoticeLog log(tree.dir("data"));
    tree.file("data/notices.json", QByteArray("{\"foundToReview\": 12"));
    EXPECT_TRUE(log.isDue(Notice::Condition::foundToReview, QDate(2026, 11, 26)));
    ASSERT_TRUE(log.record(Notice::Condition::foundToReview, QDate(2026, 11, 26)));
    EXPECT_FALSE(log.isDue(Notice::Condition::foundToReview, QDate(2026, 11, 26)));
}

TEST(NotifierTest, AppleScriptQuotesTheTextsItShows)
{
    Notice notice;
    notice.summary = QStringLiteral("Your disk is almost full");
    notice.body = QStringLiteral(R"(Only "8 GB" left \ see)");
    EXPECT_EQ(Notifier::appleScriptCommand(notice),
              (QStringList{"/usr/bin/osascript", "-e",
                           R"(display notification "Only \"8 GB\" left \\ see" with title "Dustlark" subtitle "Your disk is almost full")"}));
}

TEST(NotifierTest, TheDesktopsNotificationServiceGetsTheNoticeOverDBus)
{
    NotificationBus bus;
    if (!bus.unavailable().isEmpty())
        GTEST_SKIP() << bus.unavailable().toStdString();
    const auto notice = Notice::foundToReview({{CategoryID::docker, 3'200'000'000}});
    ASSERT_TRUE(notice);

    ASSERT_TRUE(Notifier::send(*notice, {Platform::Desktop::freedesktop, bus.address()}));
    const QList<QJsonObject> calls = bus.calls();
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0]["appName"].toString(), "Dustlark");
    EXPECT_EQ(calls[0]["summary"].toString(), "Space you can review");
    EXPECT_EQ(calls[0]["body"].toString(), "Dustlark found 3.2 GB you can review: Docker 3.2 GB");
    // A click opens the app: its desktop entry, and the default action.
    EXPECT_EQ(calls[0]["hints"].toObject()["desktop-entry"].toString(), "app.dustlark.Dustlark");
    EXPECT_EQ(calls[0]["actions"].toArray().first().toString(), "default");
}

TEST(NotifierTest, NoBusOrNoServiceMeansNotShown)
{
    const TempTree tree;
    const auto notice = Notice::foundToReview({{CategoryID::docker, GB}});
    ASSERT_TRUE(notice);
    EXPECT_FALSE(Notifier::send(*notice, {Platform::Desktop::freedesktop, "unix:path=" + tree.path("no-bus")}));
}

}  // namespace
