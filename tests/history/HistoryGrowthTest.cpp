// What grew between two kept scans and which two are compared.
#include "history/HistoryGrowth.h"

#include <gtest/gtest.h>

namespace {

using Kind = HistoryRecord::Kind;
const QDateTime start = QDateTime(QDate(2026, 11, 1), QTime(9, 0), Qt::UTC);

HistoryRecord scan(qint64 id, int day, Kind kind = Kind::scan)
{
    HistoryRecord record;
    record.id = id;
    record.kind = kind;
    record.date = start.addDays(day);
    return record;
}

}  // namespace

TEST(HistoryGrowth, ListsLargestGrowthFirstCountingWhatCameOrWentAsZero)
{
    const QMap<QString, HistoryRecord::Tally> before = {
        {"projects", {1'000, 2}}, {"docker", {500, 1}}, {"logs", {300, 4}}, {"trash", {70, 1}}};
    const QMap<QString, HistoryRecord::Tally> after = {
        {"projects", {3'100, 5}}, {"docker", {1'400, 1}}, {"logs", {300, 9}}, {"xcode", {50, 1}}};
    const QList<HistoryGrowth::Change> changes = HistoryGrowth::totals(before, after);
    ASSERT_EQ(changes.size(), 4) << "logs kept its size";
    EXPECT_EQ(changes.at(0), (HistoryGrowth::Change{"projects", {}, 1'000, 3'100}));
    EXPECT_EQ(changes.at(1), (HistoryGrowth::Change{"docker", {}, 500, 1'400}));
    EXPECT_EQ(changes.at(2), (HistoryGrowth::Change{"xcode", {}, 0, 50}));
    EXPECT_EQ(changes.at(3), (HistoryGrowth::Change{"trash", {}, 70, 0}));

    // A folder is the same folder only in the same bucket.
    const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally> was = {{{"photos", "/h/Pictures"}, {100, 1}}};
    const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally> is = {{{"photos", "/h/Pictures"}, {150, 2}},
                                                                    {{"other", "/h/Pictures"}, {900, 2}}};
    const QList<HistoryGrowth::Change> folders = HistoryGrowth::folders(was, is);
    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders.at(0), (HistoryGrowth::Change{"other", "/h/Pictures", 0, 900}));
    EXPECT_EQ(folders.at(1).growth(), 50);
}

TEST(HistoryGrowth, ComparesTheNewestWithThePreviousOrTheScanKeptAtADate)
{
    // Newest first, as a store lists them; the storage analyses are a series of their own.
    const QList<HistoryRecord> kept = {scan(6, 20), scan(5, 19, Kind::storage), scan(4, 12), scan(3, 5),
                                       scan(2, 3, Kind::storage), scan(1, 2)};
    const auto last = HistoryGrowth::pair(kept, Kind::scan, std::nullopt);
    ASSERT_TRUE(last);
    EXPECT_EQ(last->after.id, 6);
    EXPECT_EQ(last->before.id, 4);

    EXPECT_EQ(HistoryGrowth::pair(kept, Kind::scan, start.addDays(7))->before.id, 3) << "the newest at or before the date";
    EXPECT_EQ(HistoryGrowth::pair(kept, Kind::scan, start.addDays(5))->before.id, 3) << "at the very moment";
    EXPECT_EQ(HistoryGrowth::pair(kept, Kind::scan, start.addDays(-30))->before.id, 1) << "before all: the oldest kept";
    EXPECT_EQ(HistoryGrowth::pair(kept, Kind::scan, start.addDays(30))->before.id, 4) << "never the newest with itself";
    EXPECT_EQ(HistoryGrowth::pair(kept, Kind::storage, std::nullopt)->before.id, 2);
    EXPECT_FALSE(HistoryGrowth::pair(kept.mid(0, 2), Kind::scan, std::nullopt));
}

TEST(HistoryGrowth, HeadlineIsTheDiskUsedChangeWhenBothScansKnowIt)
{
    HistoryRecord before = scan(1, 0);
    HistoryRecord after = scan(2, 3);
    before.categories = {{"projects", {1'000, 1}}};
    after.categories = {{"projects", {4'000, 1}}};
    EXPECT_EQ(HistoryGrowth::headline({before, after}), 3'000);
    before.diskUsed = 50'000;
    EXPECT_EQ(HistoryGrowth::headline({before, after}), 3'000) << "one unknown figure compares nothing";
    after.diskUsed = 42'000;
    EXPECT_EQ(HistoryGrowth::headline({before, after}), -8'000);
}
