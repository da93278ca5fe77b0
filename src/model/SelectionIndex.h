#pragma once

#include "vocabulary/CleanupItem.h"

#include <QHash>
#include <QList>

#include <optional>

// Every path of the selected items mapped to the first item that removes it, so a cleanup
// can leave out an item that another selected item already takes with it (a file inside a
// selected folder), and nothing is removed twice.
class SelectionIndex {
public:
    explicit SelectionIndex(const QList<CleanupItem>& selected);

    // The selected item that already removes every path of the item at `index`: found at one
    // of those paths or a parent folder of them (walking up, stopping before "/").
    std::optional<int> covering(int index) const;

    // What a cleanup of `selected` removes, in their order: every item no other one covers.
    [[nodiscard]] static QList<CleanupItem> uncovered(const QList<CleanupItem>& selected);

private:
    std::optional<int> coveringPath(const QString& path, int self) const;

    QList<CleanupItem> m_items;
    QHash<QString, int> m_owner;  // path -> index of the first item with that path
};
