#include "support/ModelFixture.h"

#include <gtest/gtest.h>

namespace {

void showDuplicates(AppModel& model, QList<CleanupItem> items)
{
    ScanOutputs outputs;
    outputs[CategoryID::duplicates].items = std::move(items);
    model.apply(outputs, false);
}

}  // namespace

TEST(AppModelSelection, TheLastCopyOfAGroupCanNeverBeTicked)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    const CleanupItem a = copyAt("/Users/a/a.mov", "g1");
    const CleanupItem b = copyAt("/Users/a/b.mov", "g1");
    showDuplicates(model, {a, b});

    model.setSelected(a, true);
    EXPECT_TRUE(model.selection().isLastUnselectedCopy(b));
    model.setSelected(b, true);
    EXPECT_FALSE(model.selection().contains(b.id));
    model.setSelected(a, false);
    model.setSelected(b, true);
    EXPECT_TRUE(model.selection().contains(b.id));
    EXPECT_TRUE(model.selection().duplicateWouldBeLost(b, {b}));
    EXPECT_FALSE(model.selection().duplicateWouldBeLost(b, {a, b}));
}

// The copy a person thinks of as the original is the one Select All leaves, wherever it stands
// in the list and also when only some copies are shown; without one, Select All still leaves a
// copy, whatever was picked before. A copy picked by hand stays picked.
TEST(AppModelSelection, SelectAllLeavesTheOldestCopyOfEachGroup)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    QList<CleanupItem> items = {
        copyAt("/Users/a/1.mov", "g1"), copyAt("/Users/a/2.mov", "g1"), copyAt("/Users/a/3.mov", "g1"),
        copyAt("/Users/a/x.iso", "g2"), copyAt("/Users/a/y.iso", "g2"),
        copyAt("/Users/a/p.pdf", "g3"), copyAt("/Users/a/q.pdf", "g3"),
        copyAt("/Users/a/a.zip", "g4"), copyAt("/Users/a/b.zip", "g4"), copyAt("/Users/a/c.zip", "g4"),
    };
    items[1].isOldestCopy = true;
    items[3].isOldestCopy = true;
    items[6].isOldestCopy = true;
    showDuplicates(model, items);
    model.setSelected(items[8], true);

    model.setAll(items.mid(0, 6) + items.mid(7), true);  // g3's oldest copy is not shown
    const QSet<QString> undated = {items[7].id, items[8].id, items[9].id};
    EXPECT_EQ(model.selection().ids() - undated, QSet<QString>({items[0].id, items[2].id, items[4].id, items[5].id}));
    EXPECT_EQ((model.selection().ids() & undated).size(), 2) << "a group without an oldest copy keeps one too";

    model.setAll(items, false);
    model.setSelected(items[3], true);
    model.setAll(items, true);
    EXPECT_TRUE(model.selection().contains(items[3].id));
    EXPECT_FALSE(model.selection().contains(items[4].id));
    EXPECT_FALSE(model.selection().contains(items[1].id));
}

TEST(AppModelSelection, LockedAndEmptyTrashRowsStayUnselected)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    CleanupItem locked = rowAt(CategoryID::aiAgents, "/Users/a/.claude/projects/x");
    locked.lockedReason = "Changed in the last day; a session may be running.";
    CleanupItem trash = rowAt(CategoryID::trash, "/Users/a/.Trash");
    trash.removal = {Removal::EmptyTrash{}};
    model.setSelected(locked, true);
    model.setSelected(trash, true);
    model.setAll({locked, trash}, true);
    EXPECT_TRUE(model.selection().ids().isEmpty());
}

TEST(AppModelSelection, SafeListingACopyDropsItsLoneTwinFromListAndSelection)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    const CleanupItem a = copyAt("/Users/a/a.mov", "g1");
    const CleanupItem b = copyAt("/Users/a/b.mov", "g1");
    showDuplicates(model, {a, b});
    model.setSelected(b, true);

    model.addToSafeList(a);

    EXPECT_TRUE(model.result(CategoryID::duplicates).items.isEmpty());
    EXPECT_TRUE(model.selection().ids().isEmpty());
    EXPECT_EQ(model.toast(), "“a.mov” is on the Safe List.");
}

TEST(AppModelSelection, SizeFilterBoundaryAndSelectedSizes)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    ScanOutputs outputs;
    outputs[CategoryID::largeFiles].items = {rowAt(CategoryID::largeFiles, "/Users/a/exact", 100'000'000),
                                             rowAt(CategoryID::largeFiles, "/Users/a/under", 99'999'999)};
    model.apply(outputs, false);
    model.setSizeFilter(SizeFilter::hundredMB);

    const QList<CleanupItem> shown = model.visibleItems(CategoryID::largeFiles);
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.first().id, "/Users/a/exact");
    EXPECT_TRUE(model.visibleItems(CategoryID::largeFiles, "UNDER").isEmpty());

    model.setSizeFilter(SizeFilter::all);
    model.setAll(model.visibleItems(CategoryID::largeFiles, "under"), true);
    EXPECT_EQ(model.selectedSize(), 99'999'999);
    EXPECT_EQ(model.selectedSize({CategoryID::duplicates}), 0);
}
