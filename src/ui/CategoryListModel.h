#pragma once

#include "vocabulary/CategoryID.h"
#include "vocabulary/CleanupItem.h"
#include "vocabulary/ListFacts.h"

#include <QAbstractListModel>

class AppModel;

// The rows of one category list: the items that pass the size filter and the search, in the
// model's order, with section rows above each repository (Git Worktrees) and each group of
// identical files (Duplicates). The check state is the model's selection; ticking a row goes
// through AppModel's selection rules. GUI thread only.
class CategoryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IsSectionRole = Qt::UserRole + 1,
        SubtitleRole,        // section rows: the repository folder or the number of copies
        SizeTextRole,        // section rows: the group's size, formatted
        CheckboxRole,        // Checkbox, as int
        CheckboxReasonRole,  // why the checkbox can't be used; empty when it can
    };
    // What the row's checkbox looks like.
    enum class Checkbox { none, usable, locked, lastCopy };

    struct Row {
        bool isSection = false;
        int index = -1;  // into shownItems() for item rows, into the list's sections for section rows
    };

    explicit CategoryListModel(AppModel* model, QObject* parent = nullptr);

    // Shows `category` with `search` applied; rebuilds the rows.
    void show(CategoryID category, const QString& search);
    void reload();
    CategoryID category() const { return m_category; }

    const QList<CleanupItem>& shownItems() const { return m_items; }
    // The item of a row; null for a section row or an invalid index.
    const CleanupItem* itemAt(const QModelIndex& index) const;
    QModelIndex indexOfItem(const QString& id) const;
    Checkbox checkbox(const CleanupItem& item) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void buildRows();
    QVariant sectionData(const ListFacts::Section& section, int role) const;
    QVariant itemData(const CleanupItem& item, int role) const;
    void selectionDidChange();

    AppModel* m_model;
    CategoryID m_category = CategoryID::projects;
    QString m_search;
    QList<CleanupItem> m_items;
    ListFacts m_facts;  // of m_items: the result's own when every row shows, else made here
    QList<Row> m_rows;
};
