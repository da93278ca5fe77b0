// A category's total frees every row but one copy of each duplicate group, whatever order the
// rows come in and whether they are summed as rows or by index.

#include "vocabulary/CategoryResult.h"

#include <gtest/gtest.h>

namespace {

CleanupItem row(qint64 size, std::optional<QString> group = std::nullopt)
{
    CleanupItem item;
    item.size = size;
    item.duplicateGroup = std::move(group);
    return item;
}

}  // namespace

TEST(CategoryResult, EachDuplicateGroupKeepsItsLargestCopyOutOfTheTotal)
{
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QList<QList<CleanupItem>> lists = {
        {row(100, a), row(100, a), row(50, b), row(30), row(50, b), row(80, a)},  // groups mixed
        {row(30), row(50, b), row(50, b)},                                        // a lone row first
        {row(100, a), row(60, a)},                                                // one group
        {row(10), row(20)},                                                       // no group
        {}};
    const QList<qint64> expected = {260, 80, 60, 30, 0};
    for (qsizetype each = 0; each < lists.size(); ++each) {
        EXPECT_EQ(CategoryResult::freeableSize(lists[each]), expected[each]) << "list " << each;
        QList<int> reversed;
        for (qsizetype i = lists[each].size() - 1; i >= 0; --i)
            reversed.append(int(i));
        const auto rowOf = [&](int i) -> const CleanupItem& { return lists[each][i]; };
        EXPECT_EQ(CategoryResult::freeableSize(reversed, rowOf), expected[each]) << "list " << each << " reversed";
    }
}

// The total kept with a list answers only for that list: once rows are taken out (the Safe List
// filtering on the GUI thread) or a new list of the same length replaces it, the rows are summed
// again, while a copy of the result made before keeps its own total.
TEST(CategoryResult, KeptTotalFollowsTheRowsAfterTheyChange)
{
    CategoryResult result;
    result.items = {row(100, "a"), row(100, "a"), row(60, "b"), row(60, "b")};
    result.facts = ListFacts(CategoryID::duplicates, result.items);
    ASSERT_EQ(result.totalSize(), 160);
    const CategoryResult shared = result;
    result.items.removeIf([](const CleanupItem& item) { return item.size == 60; });
    EXPECT_EQ(result.totalSize(), 100);
    EXPECT_EQ(shared.totalSize(), 160);
    result.items = {row(5), row(5), row(5), row(5)};
    EXPECT_EQ(result.totalSize(), 20);
}
