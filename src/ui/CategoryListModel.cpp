#include "ui/CategoryListModel.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "vocabulary/PathRules.h"

#include <QMap>

namespace {

}  // namespace

CategoryListModel::CategoryListModel(AppModel* model, QObject* parent) : QAbstractListModel(parent), m_model(model)
{
    connect(m_model, &AppModel::resultsChanged, this, [this](CategoryID changed) {
        if (changed == m_category)
            reload();
    });
    connect(m_model, &AppModel::selectionChanged, this, &CategoryListModel::selectionDidChange);
}

void CategoryListModel::show(CategoryID category, const QString& search)
{
    m_category = category;
    m_search = search;
    reload();
}

void CategoryListModel::reload()
{
    beginResetModel();
    m_items = m_model->visibleItems(m_category, m_search);
    buildRows();
    endResetModel();
}

std::optional<QString> CategoryListModel::sectionKey(const CleanupItem& item) const
{
    if (m_category == CategoryID::worktrees)
        return item.projectPath.value_or(QString());
    if (m_category == CategoryID::duplicates)
        return m_model->selection().duplicateGroup(item).value_or(QString());
    return std::nullopt;
}

void CategoryListModel::buildRows()
{
    m_rows.clear();
    if (m_category != CategoryID::worktrees && m_category != CategoryID::duplicates) {
        m_rows.reserve(m_items.size());
        for (int i = 0; i < m_items.size(); ++i)
            m_rows.append(Row{false, i, {}, {}, m_items[i].size});
        return;
    }
    // Sections keep the order in which their first row appears in the list.
    QStringList order;
    QMap<QString, QList<int>> members;
    for (int i = 0; i < m_items.size(); ++i) {
        const QString key = sectionKey(m_items[i]).value_or(QString());
        if (!members.contains(key))
            order.append(key);
        members[key].append(i);
    }
    for (const QString& key : order) {
        m_rows.append(sectionFor(key, members[key]));
        for (int i : members[key])
            m_rows.append(Row{false, i, {}, {}, m_items[i].size});
    }
}

CategoryListModel::Row CategoryListModel::sectionFor(const QString& key, const QList<int>& members) const
{
    Row row;
    row.isSection = true;
    if (m_category == CategoryID::worktrees) {
        //: Section heading of worktrees whose repository is not known
        row.title = key.isEmpty() ? tr("Other worktrees") : key.section(QLatin1Char('/'), -1);
        //: Under a repository's name in Git Worktrees: %1 is its folder, %n the number of its worktrees listed
        row.subtitle = tr("%1 · %n worktrees", nullptr, int(members.size()))
                           .arg(PathRules::withTilde(key, m_model->settings()->home()));
        for (int i : members)
            row.size += m_items[i].size;
        return row;
    }
    const CleanupItem& first = m_items[members.first()];
    row.title = first.title;
    //: Section heading of a group of identical files; %n is the number of copies shown, %1 the size of one copy
    row.subtitle = tr("%n copies of %1 each", nullptr, int(members.size())).arg(ByteCount::format(first.size));
    // One copy always stays; summed by index, since thousands of sections arrive at once.
    row.size = CategoryResult::freeableSize(members, [this](int i) -> const CleanupItem& { return m_items[i]; });
    return row;
}

const CleanupItem* CategoryListModel::itemAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || m_rows[index.row()].isSection)
        return nullptr;
    return &m_items[m_rows[index.row()].item];
}

QModelIndex CategoryListModel::indexOfItem(const QString& id) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isSection && m_items[m_rows[row].item].id == id)
            return index(row);
    }
    return {};
}

CategoryListModel::Checkbox CategoryListModel::checkbox(const CleanupItem& item) const
{
    if (item.removal.kind() == Removal::Kind::emptyTrash)
        return Checkbox::none;
    if (item.isLocked())
        return Checkbox::locked;
    if (m_model->selection().isLastUnselectedCopy(item))
        return Checkbox::lastCopy;
    return Checkbox::usable;
}

int CategoryListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CategoryListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row& row = m_rows[index.row()];
    if (!row.isSection)
        return itemData(m_items[row.item], role);
    switch (role) {
    case IsSectionRole: return true;
    case Qt::DisplayRole: return row.title;
    case SubtitleRole: return row.subtitle;
    case SizeTextRole: return ByteCount::format(row.size);
    default: return {};
    }
}

QVariant CategoryListModel::itemData(const CleanupItem& item, int role) const
{
    switch (role) {
    case IsSectionRole: return false;
    case Qt::DisplayRole: return item.title;
    case Qt::ToolTipRole: return item.removal.paths().join(QLatin1Char('\n'));
    case Qt::CheckStateRole: return m_model->selection().contains(item.id) ? Qt::Checked : Qt::Unchecked;
    case CheckboxRole: return static_cast<int>(checkbox(item));
    case CheckboxReasonRole:
        if (item.lockedReason)
            return *item.lockedReason;
        //: Tooltip of the disabled checkbox of the one copy of a duplicate that must stay
        return checkbox(item) == Checkbox::lastCopy ? tr("One copy always stays.") : QString();
    default: return {};
    }
}

bool CategoryListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const CleanupItem* item = itemAt(index);
    if (!item || role != Qt::CheckStateRole)
        return false;
    const bool wanted = value.value<Qt::CheckState>() == Qt::Checked;
    // The model refuses what its rules forbid; the selection signal repaints the rows.
    m_model->setSelected(*item, wanted);
    return m_model->selection().contains(item->id) == wanted;
}

Qt::ItemFlags CategoryListModel::flags(const QModelIndex& index) const
{
    const CleanupItem* item = itemAt(index);
    if (!item)
        return Qt::ItemIsEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (checkbox(*item) == Checkbox::usable || m_model->selection().contains(item->id))
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

void CategoryListModel::selectionDidChange()
{
    if (!m_rows.isEmpty())
        emit dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1),
                         {Qt::CheckStateRole, CheckboxRole, CheckboxReasonRole});
}
