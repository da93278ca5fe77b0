// Selection of AppModel: the rows the person picked, kept in step with the results.
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "format/RelativeDate.h"

#include <algorithm>

void AppModel::setSelected(const CleanupItem& item, bool selected)
{
    if (m_selection.set(item, selected))
        emit selectionChanged();
}

void AppModel::setAll(const QList<CleanupItem>& items, bool selected)
{
    if (m_selection.setAll(items, selected))
        emit selectionChanged();
}

void AppModel::clearSelection()
{
    if (m_selection.clear())
        emit selectionChanged();
}

void AppModel::indexDuplicates()
{
    remakeFacts(CategoryID::duplicates);
    m_selection.indexDuplicates(result(CategoryID::duplicates).facts);
}

void AppModel::remakeFacts(CategoryID category)
{
    const auto found = m_results.find(category);
    if (found != m_results.end() && !found->second.facts.describe(found->second.items))
        found->second.facts = ListFacts(category, found->second.items);
}

void AppModel::removeLoneCopies()
{
    const auto found = m_results.find(CategoryID::duplicates);
    if (found == m_results.end())
        return;
    remakeFacts(CategoryID::duplicates);
    const QSet<QString> lone = Selection::loneCopyIds(found->second.facts);
    if (lone.isEmpty())
        return;  // removeIf would copy a list the screens share, to remove nothing
    const qsizetype before = found->second.items.size();
    bool selectionChangedHere = false;
    found->second.items.removeIf([&](const CleanupItem& item) {
        if (!lone.contains(item.id))
            return false;
        selectionChangedHere |= m_selection.remove(item.id);
        return true;
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
    const QList<CleanupItem> items = result(category).items;
    // Most often every row passes: the list is then shared, not copied row by row (a list
    // of tens of thousands of rows took longer to copy than to show).
    if (needle.isEmpty()
        && std::all_of(items.begin(), items.end(), [minimum](const CleanupItem& item) { return item.size >= minimum; }))
        return items;
    QList<CleanupItem> shown;
    for (const CleanupItem& item : items) {
        if (item.size < minimum)
            continue;
        if (!needle.isEmpty() && !item.title.contains(needle, Qt::CaseInsensitive)
            && !RelativeDate::expand(item.detail).contains(needle, Qt::CaseInsensitive))
            continue;
        shown.append(item);
    }
    return shown;
}
