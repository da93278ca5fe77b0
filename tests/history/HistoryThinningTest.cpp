// Which kept scans go: every scan of the last week stays, then one a week, then one a month,
// none older than a year, at most 200 of each kind.
#include "history/HistoryThinning.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

using Kind = HistoryRecord::Kind;
const QDateTime now = QDateTime(QDate(2026, 11, 26), QTime(12, 0), Qt::UTC);

// One scan of `kind` every `hours` hours, going back `days` days from now; ids count up from
// `firstId`, newest first.
QList<HistoryThinning::Entry> scans(Kind kind, int days, int hours, qint64 firstId = 1)
{
    QList<HistoryThinning::Entry> entries;
    qint64 id = firstId;
    for (qint64 back = 0; back < days * 24; back += hours)
        entries.append({id++, kind, now.addSecs(-back * 3600)});
    return entries;
}

QList<HistoryThinning::Entry> remaining(const QList<HistoryThinning::Entry>& entries)
{
    const QList<qint64> surplus = HistoryThinning::surplus(entries, now);
    const QSet<qint64> gone(surplus.begin(), surplus.end());
    QList<HistoryThinning::Entry> kept;
    for (const HistoryThinning::Entry& entry : entries) {
        if (!gone.contains(entry.id))
            kept.append(entry);
    }
    return kept;
}

}  // namespace

TEST(HistoryThinning, AYearOfDailyScansKeepsTheWeekThenWeeksThenMonths)
{
    const QList<HistoryThinning::Entry> kept = remaining(scans(Kind::scan, 500, 24));
    QSet<QString> weeks;
    QSet<QString> months;
    int lastWeek = 0;
    for (const HistoryThinning::Entry& entry : kept) {
        const qint64 age = entry.date.daysTo(now);
        EXPECT_LE(age, HistoryThinning::keptDays);
        if (age < HistoryThinning::everyScanDays) {
            ++lastWeek;
        } else if (age < HistoryThinning::weeklyDays) {
            const QString week = QString::number(entry.date.date().weekNumber());
            EXPECT_FALSE(weeks.contains(week)) << "two scans kept of week " << qPrintable(week);
            weeks.insert(week);
        } else {
            const QString month = entry.date.toString(QStringLiteral("yyyy-MM"));
            EXPECT_FALSE(months.contains(month)) << "two scans kept of " << qPrintable(month);
            months.insert(month);
        }
    }
    EXPECT_EQ(lastWeek, 7);
    EXPECT_GE(weeks.size(), 11);
    EXPECT_GE(months.size(), 9);
    EXPECT_LE(kept.size(), 7 + 14 + 13);
    // What stays of a period is its newest scan: the scan a week ago is still there.
    EXPECT_TRUE(std::any_of(kept.begin(), kept.end(), [](const auto& e) { return e.date.daysTo(now) == 7; }));
}

TEST(HistoryThinning, KeepsAtMostTwoHundredOfEachKindTheNewest)
{
    QList<HistoryThinning::Entry> entries = scans(Kind::scan, 6, 1);  // 144 scans in six days
    entries += scans(Kind::scan, 6, 1, 1'000).mid(0, 100);                 // 100 more at the same times
    entries += scans(Kind::storage, 6, 24, 5'000);                         // six analyses
    const QList<HistoryThinning::Entry> kept = remaining(entries);
    const auto count = [&](Kind kind) { return std::count_if(kept.begin(), kept.end(), [kind](const auto& e) { return e.kind == kind; }); };
    EXPECT_EQ(count(Kind::scan), HistoryThinning::kept);
    EXPECT_EQ(count(Kind::storage), 6) << "one kind's many scans never push out the other's";
    const QList<qint64> surplus = HistoryThinning::surplus(entries, now);
    for (qint64 id : surplus) {
        const auto gone = std::find_if(entries.begin(), entries.end(), [id](const auto& e) { return e.id == id; });
        for (const HistoryThinning::Entry& entry : kept) {
            if (entry.kind == gone->kind) {
                EXPECT_LE(gone->date, entry.date) << "a newer scan went before an older one";
            }
        }
    }
}
