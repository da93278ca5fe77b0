#include "model/Selection.h"

bool Selection::canSelect(const CleanupItem& item)
{
    return !item.isLocked() && item.removal.kind() != Removal::Kind::emptyTrash;
}

std::optional<QString> Selection::duplicateGroup(const CleanupItem& item) const
{
    if (item.duplicateGroup)
        return item.duplicateGroup;
    const auto found = m_groupOf.constFind(item.id);
    if (found == m_groupOf.constEnd())
        return std::nullopt;
    return *found;
}

bool Selection::isLastUnselectedCopy(const CleanupItem& item) const
{
    const auto group = duplicateGroup(item);
    if (!group || m_ids.contains(item.id))
        return false;
    for (const QString& member : m_members.value(*group)) {
        if (member != item.id && !m_ids.contains(member))
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

QSet<QString> Selection::loneCopyIds(const QList<CleanupItem>& duplicates)
{
    QHash<QString, int> counts;
    for (const CleanupItem& item : duplicates) {
        if (item.duplicateGroup)
            ++counts[*item.duplicateGroup];
    }
    QSet<QString> lone;
    for (const CleanupItem& item : duplicates) {
        if (item.duplicateGroup && counts.value(*item.duplicateGroup) < 2)
            lone.insert(item.id);
    }
    return lone;
}

void Selection::indexDuplicates(const QList<CleanupItem>& duplicates)
{
    m_groupOf.clear();
    m_members.clear();
    for (const CleanupItem& item : duplicates) {
        if (!item.duplicateGroup)
            continue;
        m_groupOf.insert(item.id, *item.duplicateGroup);
        m_members[*item.duplicateGroup].append(item.id);
    }
}
