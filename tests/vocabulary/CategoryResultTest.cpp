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
