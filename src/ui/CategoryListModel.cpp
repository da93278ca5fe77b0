#include "ui/CategoryListModel.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "vocabulary/PathRules.h"

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

void CategoryListModel::buildRows()
{
    const CategoryResult result = m_model->result(m_category);
    // A search or the size filter shows part of the list: its sections are worked out here.
    m_facts = result.facts.describe(m_items) ? result.facts : ListFacts(m_category, m_items);
    m_rows.clear();
    if (m_facts.sections().isEmpty()) {
        m_rows.resize(m_items.size());
        for (int i = 0; i < m_items.size(); ++i)
            m_rows[i] = Row{false, i};
        return;
    }
    m_rows.reserve(m_items.size() + m_facts.sections().size());
    for (int section = 0; section < m_facts.sections().size(); ++section) {
        m_rows.append(Row{true, section});
        for (int i : m_facts.sections()[section].rows)
            m_rows.append(Row{false, i});
    }
}

// Worked out when the view asks, for the few sections on screen, not for thousands at once.
QVariant CategoryListModel::sectionData(const ListFacts::Section& section, int role) const
{
    const bool worktrees = m_category == CategoryID::worktrees;
    const int members = int(section.rows.size());
    switch (role) {
    case IsSectionRole: return true;
    case Qt::DisplayRole:
        if (!worktrees)
            return m_items[section.rows.first()].title;
        //: Section heading of worktrees whose repository is not known
        return section.key.isEmpty() ? tr("Other worktrees") : section.key.section(QLatin1Char('/'), -1);
    case SubtitleRole:
        if (worktrees)
            //: Under a repository's name in Git Worktrees: %1 is its folder, %n the number of its worktrees listed
            return tr("%1 · %n worktrees", nullptr, members).arg(PathRules::withTilde(section.key, m_model->settings()->home()));
        //: Section heading of a group of identical files; %n is the number of copies shown, %1 the size of one copy
        return tr("%n copies of %1 each", nullptr, members).arg(ByteCount::format(m_items[section.rows.first()].size));
    case SizeTextRole: return ByteCount::format(section.freeableSize);
    default: return {};
    }
}

const CleanupItem* CategoryListModel::itemAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || m_rows[index.row()].isSection)
        return nullptr;
    return &m_items[m_rows[index.row()].index];
}

QModelIndex CategoryListModel::indexOfItem(const QString& id) const
{
    for (int row = 0; row < m_rows.size(); ++row) {
        if (!m_rows[row].isSection && m_items[m_rows[row].index].id == id)
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
    return row.isSection ? sectionData(m_facts.sections()[row.index], role) : itemData(m_items[row.index], role);
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
