#pragma once

#include "vocabulary/CleanupItem.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <algorithm>
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

    // What cleaning every row could free: each duplicate group counts without its largest copy,
    // since one copy always stays. Shown as the category's total everywhere.
    qint64 totalSize() const { return freeableSize(items); }

    // The same for any list of rows (a group, a filtered list).
    static qint64 freeableSize(const QList<CleanupItem>& rows)
    {
        qint64 total = 0;
        QHash<QString, qint64> largestCopy;
        for (const CleanupItem& item : rows) {
            total += item.size;
            if (item.duplicateGroup) {
                qint64& largest = largestCopy[*item.duplicateGroup];
                largest = std::max(largest, item.size);
            }
        }
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
