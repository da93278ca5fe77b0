#include "model/StatsStore.h"
#include "support/SettingsFile.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <gtest/gtest.h>

namespace {

const QString statsKey = QStringLiteral("usageStats");

class StatsStoreTest : public ::testing::Test {
protected:
    std::unique_ptr<StatsStore> store(QSettings* settings)
    {
        return std::make_unique<StatsStore>(settings, [this] { return now; });
    }
    std::unique_ptr<StatsStore> reopened() { return store(file.reopen()); }

    SettingsFile file;
    QDateTime now = QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);  // 736257600 s after 2001
};

StatsStore::Stats freshStats(const QDateTime& firstUse)
{
    StatsStore::Stats stats;
    stats.firstUse = firstUse;
    return stats;
}

CategoryResult resultOfSizes(std::initializer_list<qint64> sizes)
{
    CategoryResult result;
    for (qint64 size : sizes) {
        CleanupItem item;
        item.size = size;
        result.items.append(item);
    }
    return result;
}

TEST_F(StatsStoreTest, FirstLaunchStartsFreshAndSavesAtOnce)
{
    EXPECT_EQ(store(file.settings())->stats(), freshStats(now));
    const QDateTime firstLaunch = now;
    now = now.addDays(3);
    EXPECT_EQ(reopened()->stats().firstUse, firstLaunch);
    const QJsonObject stored = QJsonDocument::fromJson(file.settings()->value(statsKey).toByteArray()).object();
    EXPECT_EQ(stored.value(QStringLiteral("firstUse")).toDouble(), 736257600.0);
}

TEST_F(StatsStoreTest, UnreadableStatsAreReplacedByAFreshRecord)
{
    const QByteArray broken[] = {
        QByteArray("\x01\x02 not json"),
        QByteArray(R"({"firstUse": 0, "cleanedBytes": 0, "cleanups": "3", "itemsRemoved": 0, "history": []})"),
        QByteArray(R"({"firstUse": 0, "cleanedBytes": 0, "cleanups": 1, "itemsRemoved": 1, "history":
            [{"id": "not-a-uuid", "date": 0, "movedToTrash": 1, "removedByTools": 0, "items": 1}]})"),
        QByteArray(R"({"firstUse": 0, "cleanedBytes": 0, "cleanups": 0, "itemsRemoved": 0, "history": [],
            "lastScan": {"date": 0, "seconds": 1, "found": 5, "categorySizes": {"apps": "5"}}})"),
    };
    for (const QByteArray& value : broken) {
        SCOPED_TRACE(value.toStdString());
        file.withText(QByteArray())->setValue(statsKey, value);
        EXPECT_EQ(reopened()->stats(), freshStats(now));
        EXPECT_EQ(reopened()->stats(), freshStats(now));  // the fresh record was saved
    }
}

TEST_F(StatsStoreTest, ReadsWhatTheMacBuildWrites)
{
    file.settings()->setValue(statsKey, QByteArray(R"({"firstUse": 700000000.25, "cleanedBytes": 9000000000,
        "cleanups": 1, "itemsRemoved": 7,
        "lastStorage": {"date": 736257600, "totals": {"apps": 300, "system": 900}, "notMeasured": 12},
        "history": [{"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "date": 736257600,
                     "movedToTrash": 5000000000, "removedByTools": 4000000000, "items": 7}]})"));
    const StatsStore::Stats stats = reopened()->stats();
    EXPECT_EQ(stats.firstUse, QDateTime(QDate(2023, 3, 8), QTime(20, 26, 40, 250), Qt::UTC));
    EXPECT_EQ(stats.cleanedBytes, 9'000'000'000LL);
    ASSERT_EQ(stats.history.size(), 1);
    EXPECT_EQ(stats.history.first().date, now);
    ASSERT_TRUE(stats.lastStorage);
    EXPECT_EQ(stats.lastStorage->sortedBuckets(),
              (QList<QPair<QString, qint64>>{{QStringLiteral("system"), 900}, {QStringLiteral("apps"), 300}}));
}

TEST_F(StatsStoreTest, HistoryKeepsTheNewestThirtyWhileTotalsCountEveryCleanup)
{
    const auto stats = store(file.settings());
    for (int items = 1; items <= 31; ++items) {
        now = now.addSecs(60);
        stats->recordCleanup(1000, 10, items);
    }
    const StatsStore::Stats& recorded = stats->stats();
    EXPECT_EQ(recorded.cleanups, 31);
    EXPECT_EQ(recorded.itemsRemoved, 31 * 32 / 2);
    EXPECT_EQ(recorded.cleanedBytes, 31 * 1010);
    ASSERT_EQ(recorded.history.size(), StatsStore::historyLimit);
    EXPECT_EQ(recorded.history.first().items, 31);
    EXPECT_EQ(recorded.history.first().date, now);
    EXPECT_EQ(recorded.history.last().items, 2);  // the first cleanup is the one dropped
    EXPECT_FALSE(QUuid::fromString(recorded.history.first().id).isNull());
    EXPECT_EQ(reopened()->stats(), recorded);
}

TEST_F(StatsStoreTest, ACleanupThatRemovedNothingChangesNothing)
{
    const auto stats = store(file.settings());
    stats->recordCleanup(500, 0, 1);
    const StatsStore::Stats before = stats->stats();
    const QByteArray storedBefore = file.text();
    int changed = 0;
    QObject::connect(stats.get(), &StatsStore::statsChanged, [&] { ++changed; });
    stats->recordCleanup(700, 100, 0);
    EXPECT_EQ(stats->stats(), before);
    EXPECT_EQ(file.text(), storedBefore);
    EXPECT_EQ(changed, 0);
}

TEST_F(StatsStoreTest, ScanAndStorageSummariesRoundTrip)
{
    const auto stats = store(file.settings());
    stats->recordScan(now.addMSecs(-90'700), {{CategoryID::projects, resultOfSizes({1'000'000, 2'500'000})},
                                              {CategoryID::docker, resultOfSizes({7'000'000'000})},
                                              {CategoryID::trash, resultOfSizes({})}});
    stats->recordStorage({{QStringLiteral("developer"), 50}, {QStringLiteral("media"), 70}}, 9);
    ASSERT_TRUE(stats->stats().lastScan);
    const StatsStore::ScanSummary& scan = *stats->stats().lastScan;
    EXPECT_EQ(scan.seconds, 90);
    EXPECT_EQ(scan.found, 7'003'500'000LL);
    EXPECT_EQ(scan.categorySizes, (QMap<QString, qint64>{{QStringLiteral("projects"), 3'500'000},
                                                         {QStringLiteral("docker"), 7'000'000'000},
                                                         {QStringLiteral("trash"), 0}}));
    EXPECT_EQ(reopened()->stats(), stats->stats());
}

}  // namespace
