#include "model/Selection.h"

bool Selection::canSelect(const CleanupItem& item)
{
    return !item.isLocked() && item.removal.kind() != Removal::Kind::emptyTrash;
}

std::optional<QString> Selection::duplicateGroup(const CleanupItem& item) const
{
    if (item.duplicateGroup)
        return item.duplicateGroup;
    const CleanupItem* listed = m_duplicates.rowWithId(item.id);
    return listed ? listed->duplicateGroup : std::nullopt;
}

bool Selection::isLastUnselectedCopy(const CleanupItem& item) const
{
    const auto group = duplicateGroup(item);
    if (!group || m_ids.contains(item.id))
        return false;
    const ListFacts::Section* members = m_duplicates.section(*group);
    for (int member : members ? members->rows : QList<int>()) {
        const QString& id = m_duplicates.rows()[member].id;
        if (id != item.id && !m_ids.contains(id))
            return false;
    }
    return true;
}

bool Selection::duplicateWouldBeLost(const CleanupItem& item, const QList<CleanupItem>& remaining) const
{
    const auto group = duplicateGroup(item);
    if (!group)
        return false;
    for (const CleanupItem& other : remaining) {
        if (other.id != item.id && duplicateGroup(other) == group)
            return false;
    }
    return true;
}

bool Selection::wouldLoseLastCopy(const CleanupItem& item, const QList<CleanupItem>& remaining)
{
    if (!item.duplicateGroup)
        return false;
    for (const CleanupItem& other : remaining) {
        if (other.id != item.id && other.duplicateGroup == item.duplicateGroup)
            return false;
    }
    return true;
}

bool Selection::set(const CleanupItem& item, bool selected)
{
    if (!canSelect(item))
        return false;
    if (!selected)
        return m_ids.remove(item.id);
    if (isLastUnselectedCopy(item) || m_ids.contains(item.id))
        return false;
    m_ids.insert(item.id);
    return true;
}

bool Selection::setAll(const QList<CleanupItem>& items, bool selected)
{
    const QSet<QString> before = m_ids;
    if (!selected) {
        for (const CleanupItem& item : items) {
            if (!item.isLocked())
                m_ids.remove(item.id);
        }
        return m_ids != before;
    }
    // Rows already selected stay so; of the others the oldest copies are taken last, so when a
    // group would lose its last unselected member, the oldest copy is the one left out.
    QList<CleanupItem> ordered;
    for (const bool oldest : {false, true}) {
        for (const CleanupItem& item : items) {
            if (!m_ids.contains(item.id) && item.isOldestCopy == oldest)
                ordered.append(item);
        }
    }
    for (const CleanupItem& item : ordered) {
        if (canSelect(item) && !isLastUnselectedCopy(item))
            m_ids.insert(item.id);
    }
    return m_ids != before;
}

bool Selection::clear()
{
    if (m_ids.isEmpty())
        return false;
    m_ids.clear();
    return true;
}

QSet<QString> Selection::loneCopyIds(const ListFacts& duplicates)
{
    QSet<QString> lone;
    for (const ListFacts::Section& section : duplicates.sections()) {
        const CleanupItem& only = duplicates.rows()[section.rows.first()];
        if (section.rows.size() == 1 && only.duplicateGroup)
            lone.insert(only.id);
    }
    return lone;
}
