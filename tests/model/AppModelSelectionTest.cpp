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

TEST(AppModelSelection, SelectAllKeepsOneCopyPerGroup)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    const QList<CleanupItem> items = {
        copyAt("/Users/a/1.mov", "g1"), copyAt("/Users/a/2.mov", "g1"), copyAt("/Users/a/3.mov", "g1"),
        copyAt("/Users/a/x.iso", "g2"), copyAt("/Users/a/y.iso", "g2"),
    };
    showDuplicates(model, items);
    model.setSelected(items[1], true);  // an earlier pick doesn't change the rule

    model.setAll(model.visibleItems(CategoryID::duplicates), true);

    EXPECT_EQ(model.selection().ids().size(), 3);
    for (const QString& group : {QString("g1"), QString("g2")}) {
        int unselected = 0;
        for (const CleanupItem& item : items)
            unselected += item.duplicateGroup == group && !model.selection().contains(item.id);
        EXPECT_EQ(unselected, 1) << group.toStdString();
    }
    model.setAll(items, false);
    EXPECT_TRUE(model.selection().ids().isEmpty());
}

// The copy a person thinks of as the original is the one Select All leaves, wherever it stands
// in the list and also when only some copies are shown; a copy picked by hand stays picked.
TEST(AppModelSelection, SelectAllLeavesTheOldestCopyOfEachGroup)
{
    ModelFixture fixture;
    AppModel& model = fixture.model();
    QList<CleanupItem> items = {
        copyAt("/Users/a/1.mov", "g1"), copyAt("/Users/a/2.mov", "g1"), copyAt("/Users/a/3.mov", "g1"),
        copyAt("/Users/a/x.iso", "g2"), copyAt("/Users/a/y.iso", "g2"),
        copyAt("/Users/a/p.pdf", "g3"), copyAt("/Users/a/q.pdf", "g3"),
    };
    items[1].isOldestCopy = true;
    items[3].isOldestCopy = true;
    items[6].isOldestCopy = true;
    showDuplicates(model, items);

    model.setAll({items[0], items[1], items[2], items[3], items[4], items[5]}, true);
    EXPECT_EQ(model.selection().ids(), QSet<QString>({items[0].id, items[2].id, items[4].id, items[5].id}));

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
