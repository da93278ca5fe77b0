#pragma once

#include "vocabulary/CleanupItem.h"
#include "vocabulary/ListFacts.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <optional>

// What a scanner returns for one category.
struct ScanOutput {
    QList<CleanupItem> items;
    QStringList notes;               // banners above the list
    std::optional<QString> summary;  // one line under the title
    bool operator==(const ScanOutput&) const = default;
};

// What the model keeps for one category.
struct CategoryResult {
    enum class State { idle, scanning, done };

    State state = State::idle;
    QList<CleanupItem> items;  // display order
    QStringList notes;
    std::optional<QString> summary;
    // Made with `items` where the list was made; once the list changes they no longer describe it.
    ListFacts facts;

    // What cleaning every row could free: each duplicate group counts without its largest copy,
    // since one copy always stays. Shown as the category's total everywhere.
    qint64 totalSize() const { return facts.describe(items) ? facts.freeableSize() : freeableSize(items); }

    // The same for any list of rows (a group, a filtered list); `rowOf` turns an element of
    // `rows` into its row, so a list of indices is summed without copying the rows. A list of
    // one group (a section of the duplicates list, thousands of which arrive at once) needs no
    // table of groups.
    template <typename Rows, typename RowOf = std::identity>
    static qint64 freeableSize(const Rows& rows, RowOf rowOf = {})
    {
        if (std::empty(rows))
            return 0;
        const std::optional<QString>& firstGroup = rowOf(*std::begin(rows)).duplicateGroup;
        qint64 total = 0;
        qint64 largestOfFirst = 0;
        bool oneGroup = true;
        QHash<QString, qint64> largestCopy;
        for (const auto& element : rows) {
            const CleanupItem& item = rowOf(element);
            total += item.size;
            if (oneGroup && item.duplicateGroup == firstGroup) {
                largestOfFirst = std::max(largestOfFirst, item.size);
                continue;
            }
            if (oneGroup && firstGroup)
                largestCopy.insert(*firstGroup, largestOfFirst);
            oneGroup = false;
            if (item.duplicateGroup) {
                qint64& largest = largestCopy[*item.duplicateGroup];
                largest = std::max(largest, item.size);
            }
        }
        if (oneGroup)
            return firstGroup ? total - largestOfFirst : total;
        for (qint64 kept : largestCopy)
            total -= kept;
        return total;
    }

    static QString rawState(State state)
    {
        switch (state) {
        case State::idle: return QStringLiteral("idle");
        case State::scanning: return QStringLiteral("scanning");
        case State::done: return QStringLiteral("done");
        }
        return {};
    }

    bool operator==(const CategoryResult&) const = default;
};
