// Selection and duplicate protection of AppModel: nothing is selected for the person, and a
// cleanup may never remove every copy of a duplicated file.
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "format/RelativeDate.h"

bool AppModel::canSelect(const CleanupItem& item) const
{
    // The Trash row is emptied with its own button, never through a selection.
    return !item.isLocked() && item.removal.kind() != Removal::Kind::emptyTrash;
}

std::optional<QString> AppModel::duplicateGroup(const CleanupItem& item) const
{
    if (item.duplicateGroup)
        return item.duplicateGroup;
    const auto found = m_duplicateGroupOf.constFind(item.id);
    if (found == m_duplicateGroupOf.constEnd())
        return std::nullopt;
    return *found;
}

bool AppModel::isLastUnselectedCopy(const CleanupItem& item) const
{
    const auto group = duplicateGroup(item);
    if (!group || m_selection.contains(item.id))
        return false;
    for (const QString& member : m_duplicateMembers.value(*group)) {
        if (member != item.id && !m_selection.contains(member))
            return false;
    }
    return true;
}

void AppModel::setSelected(const CleanupItem& item, bool selected)
{
    if (!canSelect(item))
        return;
    if (!selected) {
        if (m_selection.remove(item.id))
            emit selectionChanged();
        return;
    }
    if (isLastUnselectedCopy(item) || m_selection.contains(item.id))
        return;
    m_selection.insert(item.id);
    emit selectionChanged();
}

void AppModel::setAll(const QList<CleanupItem>& items, bool selected)
{
    if (!selected) {
        for (const CleanupItem& item : items) {
            if (!item.isLocked())
                m_selection.remove(item.id);
        }
        emit selectionChanged();
        return;
    }
    // Rows not yet selected go first, so an already selected copy is what gets skipped when a
    // group would otherwise lose its last unselected member.
    QList<CleanupItem> ordered;
    for (const CleanupItem& item : items) {
        if (!m_selection.contains(item.id))
            ordered.append(item);
    }
    for (const CleanupItem& item : items) {
        if (m_selection.contains(item.id))
            ordered.append(item);
    }
    for (const CleanupItem& item : ordered) {
        if (canSelect(item) && !isLastUnselectedCopy(item))
            m_selection.insert(item.id);
    }
    emit selectionChanged();
}

void AppModel::clearSelection()
{
    if (m_selection.isEmpty())
        return;
    m_selection.clear();
    emit selectionChanged();
}

void AppModel::indexDuplicates()
{
    m_duplicateGroupOf.clear();
    m_duplicateMembers.clear();
    for (const CleanupItem& item : result(CategoryID::duplicates).items) {
        if (!item.duplicateGroup)
            continue;
        m_duplicateGroupOf.insert(item.id, *item.duplicateGroup);
        m_duplicateMembers[*item.duplicateGroup].append(item.id);
    }
}

void AppModel::removeLoneCopies()
{
    const auto found = m_results.find(CategoryID::duplicates);
    if (found == m_results.end())
        return;
    QHash<QString, int> counts;
    for (const CleanupItem& item : found->second.items) {
        if (item.duplicateGroup)
            ++counts[*item.duplicateGroup];
    }
    const qsizetype before = found->second.items.size();
    bool selectionChangedHere = false;
    found->second.items.removeIf([&](const CleanupItem& item) {
        const bool lone = item.duplicateGroup && counts.value(*item.duplicateGroup) < 2;
        if (lone)
            selectionChangedHere |= m_selection.remove(item.id);
        return lone;
    });
    if (found->second.items.size() == before)
        return;
    indexDuplicates();
    emit resultsChanged(CategoryID::duplicates);
    if (selectionChangedHere)
        emit selectionChanged();
}

QList<CleanupItem> AppModel::selectedItems() const
{
    QList<CleanupItem> selected;
    for (CategoryID category : Categories::allCases()) {
        for (const CleanupItem& item : result(category).items) {
            if (m_selection.contains(item.id))
                selected.append(item);
        }
    }
    return selected;
}

qint64 AppModel::selectedSize() const
{
    return selectedSize(QList<CategoryID>(Categories::allCases().begin(), Categories::allCases().end()));
}

qint64 AppModel::selectedSize(const QList<CategoryID>& categories) const
{
    qint64 total = 0;
    for (CategoryID category : categories) {
        for (const CleanupItem& item : result(category).items) {
            if (m_selection.contains(item.id))
                total += item.size;
        }
    }
    return total;
}

bool AppModel::duplicateWouldBeLost(const CleanupItem& item, const QList<CleanupItem>& remaining) const
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

bool AppModel::wouldLoseLastCopy(const CleanupItem& item, const QList<CleanupItem>& remaining)
{
    if (!item.duplicateGroup)
        return false;
    for (const CleanupItem& other : remaining) {
        if (other.id != item.id && other.duplicateGroup == item.duplicateGroup)
            return false;
    }
    return true;
}

SizeFilter AppModel::sizeFilter() const
{
    return SizeFilters::fromRawValue(m_settings->sizeFilterRaw());
}

void AppModel::setSizeFilter(SizeFilter filter)
{
    m_settings->setSizeFilterRaw(SizeFilters::rawValue(filter));
}

QList<CleanupItem> AppModel::visibleItems(CategoryID category, const QString& search) const
{
    const qint64 minimum = SizeFilters::minimumBytes(sizeFilter());
    const QString needle = search.trimmed();
    QList<CleanupItem> shown;
    for (const CleanupItem& item : result(category).items) {
        if (item.size < minimum)
            continue;
        if (!needle.isEmpty() && !item.title.contains(needle, Qt::CaseInsensitive)
            && !RelativeDate::expand(item.detail).contains(needle, Qt::CaseInsensitive))
            continue;
        shown.append(item);
    }
    return shown;
}
