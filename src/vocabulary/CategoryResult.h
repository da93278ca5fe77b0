#pragma once

#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QStringList>

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

    qint64 totalSize() const
    {
        qint64 total = 0;
        for (const CleanupItem& item : items)
            total += item.size;
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
