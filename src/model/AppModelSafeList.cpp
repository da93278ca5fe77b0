// The Safe List actions of AppModel.
#include "model/AppModel.h"
#include "model/SettingsStore.h"

void AppModel::addToSafeList(const CleanupItem& item)
{
    m_settings->addSafeItem(item);
    removeSafeItemsFromResults();
    //: Toast after a row was put on the Safe List; %1 is the row's title
    showToast(tr("“%1” is on the Safe List.").arg(item.title));
}

bool AppModel::removeItemsWhere(const std::function<bool(const CleanupItem&)>& predicate)
{
    bool selectionTouched = false;
    for (auto& [category, entry] : m_results) {
        const qsizetype before = entry.items.size();
        entry.items.removeIf([&](const CleanupItem& item) {
            if (!predicate(item))
                return false;
            selectionTouched |= m_selection.remove(item.id);
            return true;
        });
        if (entry.items.size() == before)
            continue;
        remakeFacts(category);
        emit resultsChanged(category);
    }
    indexDuplicates();
    return selectionTouched;
}

void AppModel::removeSafeItemsFromResults()
{
    const bool selectionTouched = removeItemsWhere([this](const CleanupItem& item) { return m_settings->isSafe(item); });
    removeLoneCopies();
    if (selectionTouched)
        emit selectionChanged();
}

void AppModel::addSafeFolder(const QString& path)
{
    m_settings->addSafeFolder(path);
    removeSafeItemsFromResults();
}

void AppModel::removeSafeFolder(const QString& path)
{
    m_settings->removeSafeFolder(path);
}

void AppModel::removeFromSafeList(const QString& id)
{
    const auto info = m_settings->safeItemInfo().value(id);
    const auto category = Categories::fromRawValue(info.category);
    m_settings->removeSafeItem(id);
    // Rescanning brings the row back at once, but only where the person has scanned before.
    if (category && result(*category).state == CategoryResult::State::done)
        rescan(*category);
}

void AppModel::showToast(const QString& text)
{
    m_toast = text;
    emit toastChanged(text);
}
