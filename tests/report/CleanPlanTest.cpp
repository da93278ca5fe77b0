#include "report/CleanPlan.h"
#include "report/CleanReport.h"
#include "support/ModelFixture.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

QStringList idsOf(const QList<CleanupItem>& items)
{
    QStringList ids;
    for (const CleanupItem& item : items)
        ids.append(item.id);
    return ids;
}

}  // namespace

// What clean may never take: locked rows, the Trash row, a file a taken folder removes anyway;
// what it takes only when told: rows Docker removes for good, listed as left out with the reason.
TEST(CleanPlan, TakesWhatSelectAllTakesAndLeavesPermanentRowsUnlessAsked)
{
    const CleanupItem folder = rowAt(CategoryID::projects, "/h/code/web/node_modules", 8000);
    CleanupItem locked = rowAt(CategoryID::projects, "/h/code/api/node_modules", 8000);
    locked.lockedReason = "Changed in the last day; a session may be running.";
    const CleanupItem inside = rowAt(CategoryID::largeFiles, "/h/code/web/node_modules/big.bin", 90'000'000);
    CleanupItem cache = rowAt(CategoryID::docker, "docker:buildcache", 4000);
    cache.removal = Removal::docker({DockerOperation::BuildCache{}});
    CleanupItem trash = rowAt(CategoryID::trash, "trash", 1000);
    trash.removal = Removal{Removal::EmptyTrash{}};
    ScanReport::Results results;
    results[CategoryID::projects] = {CategoryResult::State::done, {folder, locked}, {}, std::nullopt, {}};
    results[CategoryID::largeFiles] = {CategoryResult::State::done, {inside}, {}, std::nullopt, {}};
    results[CategoryID::docker] = {CategoryResult::State::done, {cache}, {}, std::nullopt, {}};
    results[CategoryID::trash] = {CategoryResult::State::done, {trash}, {}, std::nullopt, {}};
    const QDateTime now = QDateTime::currentDateTimeUtc();

    CleanOptions options;
    const CleanPlan plan = CleanPlan::make(results, options, "/h", now);
    ASSERT_EQ(plan.entries.size(), 2);
    EXPECT_EQ(idsOf(plan.toRemove()), QStringList{folder.id});
    EXPECT_EQ(plan.entries[1].item.id, cache.id);
    EXPECT_EQ(plan.entries[1].leftOut, CleanPlan::permanentLeftOutReason());

    const QJsonArray rows = CleanReport::dryRunOf(plan).toJson()["items"].toArray();
    EXPECT_EQ(rows[0]["outcome"].toString(), "wouldMove");
    EXPECT_TRUE(rows[0]["reason"].isNull());
    EXPECT_EQ(rows[1]["outcome"].toString(), "skipped");
    EXPECT_EQ(rows[1]["reason"].toString(), CleanPlan::permanentLeftOutReason());
    EXPECT_EQ(CleanReport::dryRunOf(plan).toJson()["freed"].toDouble(), 8000);

    options.permanent = true;
    EXPECT_EQ(idsOf(CleanPlan::make(results, options, "/h", now).toRemove()), QStringList({folder.id, cache.id}));
}

// A run stopped early reports the items it never reached as skipped with the reason.
TEST(CleanPlan, AStoppedRunListsWhatItDidAndDidNotReach)
{
    const CleanupItem web = rowAt(CategoryID::projects, "/h/code/web/node_modules", 8000);
    const CleanupItem shop = rowAt(CategoryID::projects, "/h/code/shop/node_modules", 3000);
    ScanReport::Results results;
    results[CategoryID::projects] = {CategoryResult::State::done, {web, shop}, {}, std::nullopt, {}};
    CleanReport report = CleanReport::runOf(CleanPlan::make(results, {}, "/h", QDateTime::currentDateTimeUtc()));
    report.record(web, RemovalOutcome::movedToTrash());

    const QJsonObject json = report.toJson();
    EXPECT_FALSE(json["dryRun"].toBool());
    EXPECT_EQ(json["freed"].toDouble(), 8000);
    EXPECT_EQ(json["items"][0]["outcome"].toString(), "moved");
    EXPECT_EQ(json["items"][1]["outcome"].toString(), "skipped");
    EXPECT_EQ(json["items"][1]["reason"].toString(), CleanReport::notReachedReason());
}
