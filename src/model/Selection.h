#pragma once

#include "vocabulary/CleanupItem.h"
#include "vocabulary/ListFacts.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// The rows the person picked, by item id, and the duplicate groups that keep one copy of every
// file unselected: nothing is selected for the person, and no cleanup may remove every copy. A
// value AppModel owns; it changes it on the GUI thread and says so with selectionChanged. The
// changes answer whether anything changed.
class Selection {
public:
    [[nodiscard]] bool contains(const QString& id) const { return m_ids.contains(id); }
    [[nodiscard]] const QSet<QString>& ids() const { return m_ids; }

    // Locked rows and the Trash row (emptied with its own button) are never selected.
    [[nodiscard]] static bool canSelect(const CleanupItem& item);
    // The row's duplicate group: its own key, or the one the duplicates list gave its id.
    [[nodiscard]] std::optional<QString> duplicateGroup(const CleanupItem& item) const;
    // True when `item` is unselected and every other copy of its group is selected.
    [[nodiscard]] bool isLastUnselectedCopy(const CleanupItem& item) const;
    // True when removing `item` would leave no copy of its content among `remaining`.
    [[nodiscard]] bool duplicateWouldBeLost(const CleanupItem& item, const QList<CleanupItem>& remaining) const;
    // The same rule from the rows' own group keys alone, for worker threads.
    [[nodiscard]] static bool wouldLoseLastCopy(const CleanupItem& item, const QList<CleanupItem>& remaining);

    bool set(const CleanupItem& item, bool selected);
    // Selects every row it may, or deselects every unlocked row. One copy of every duplicate
    // group stays out: the oldest copy unless the person picked it before, since that is the
    // one people think of as the original.
    bool setAll(const QList<CleanupItem>& items, bool selected);
    bool remove(const QString& id) { return m_ids.remove(id); }
    bool clear();
    // The ids of the duplicates rows whose group has no other row left: no longer duplicates.
    [[nodiscard]] static QSet<QString> loneCopyIds(const ListFacts& duplicates);
    // Learns the duplicate groups from the facts of the duplicates list (its rows by id and its
    // sections, one a group).
    void indexDuplicates(ListFacts duplicates) { m_duplicates = std::move(duplicates); }

private:
    QSet<QString> m_ids;
    ListFacts m_duplicates;
};
