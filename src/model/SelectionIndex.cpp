#include "model/SelectionIndex.h"

SelectionIndex::SelectionIndex(const QList<CleanupItem>& selected) : m_items(selected)
{
    for (int i = 0; i < m_items.size(); ++i) {
        for (const QString& path : m_items[i].removal.paths()) {
            if (!m_owner.contains(path))
                m_owner.insert(path, i);
        }
    }
}

std::optional<int> SelectionIndex::coveringPath(const QString& path, int self) const
{
    QString current = path;
    while (!current.isEmpty() && current != QLatin1String("/")) {
        const auto owner = m_owner.constFind(current);
        // The same path listed twice (a large file that is also a duplicate): the first keeps it.
        if (owner != m_owner.constEnd() && *owner != self && (current != path || *owner < self))
            return *owner;
        const qsizetype slash = current.lastIndexOf(QLatin1Char('/'));
        current = slash <= 0 ? QString() : current.left(slash);
    }
    return std::nullopt;
}

std::optional<int> SelectionIndex::covering(int index) const
{
    const QStringList paths = m_items[index].removal.paths();
    if (paths.isEmpty())
        return std::nullopt;
    std::optional<int> first;
    for (const QString& path : paths) {
        const auto owner = coveringPath(path, index);
        if (!owner)
            return std::nullopt;  // a path nobody else removes keeps the item in
        if (!first)
            first = owner;
    }
    return first;
}

QList<CleanupItem> SelectionIndex::uncovered(const QList<CleanupItem>& selected)
{
    const SelectionIndex index(selected);
    QList<CleanupItem> items;
    for (int i = 0; i < selected.size(); ++i) {
        if (!index.covering(i))
            items.append(selected[i]);
    }
    return items;
}
