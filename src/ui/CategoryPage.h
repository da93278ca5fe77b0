#pragma once

#include "ui/AIQuestions.h"
#include "vocabulary/CategoryID.h"

#include <QWidget>

class AppModel;
class CategoryItemDelegate;
class CategoryListModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QPushButton;
class QStackedWidget;
class QToolButton;
class QVBoxLayout;
class SelectionBar;
class TrashEmptier;

// The screen of one category: its explanation, notes and summary above a list of its rows
// (filtered by size and search), the actions on the list and on each row, and the selection
// line with the button that opens the cleanup. One page serves every category.
class CategoryPage : public QWidget {
    Q_OBJECT

public:
    explicit CategoryPage(AppModel* model, QWidget* parent = nullptr);

    void showCategory(CategoryID category);
    void setQuestions(AIQuestions questions);

    // The row menu of `index` (an item row), deleted when closed; null for other rows.
    QMenu* makeRowMenu(const QModelIndex& index);
    // Opens the row menu of `index` at `at`, a point of the list's viewport.
    void popUpRowMenu(const QModelIndex& index, const QPoint& at);
    QString emptyStateText() const;
    bool showsList() const;

    QListView* list() const { return m_list; }
    CategoryListModel* listModel() const { return m_listModel; }
    CategoryItemDelegate* delegate() const { return m_delegate; }
    QCheckBox* selectAll() const { return m_selectAll; }
    QComboBox* sizeFilter() const { return m_sizeFilter; }
    QLineEdit* search() const { return m_search; }
    QPushButton* askAboutShownButton() const { return m_askAboutShown; }
    QPushButton* emptyTrashButton() const { return m_emptyTrash; }
    SelectionBar* selectionBar() const { return m_selectionBar; }
    QLabel* scanned() const { return m_scanned; }

protected:
    // The keyboard's way to the row menu: the menu key (or Shift+F10) on the current row opens it
    // under the row's ••• button.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* makeHeader();
    QLayout* makeControls();
    void makeList();
    void fillSizeFilter();
    void connectModel();
    void refresh();
    void refreshScanned();
    void refreshNotes();
    void refreshControls();
    void refreshSelectAll();
    void reloadList();
    void selectAllClicked();
    void sizeFilterChosen(int index);
    void showRowMenu(const QPoint& at);
    void addRowActions(QMenu* menu, const CleanupItem& item);
    void askAbout(const QModelIndex& index);
    void askAboutShown();
    void reveal(const CleanupItem& item);

    AppModel* m_model;
    CategoryID m_category = CategoryID::projects;
    AIQuestions m_questions;
    QLabel* m_title;
    QLabel* m_scanned;
    QLabel* m_total;
    QToolButton* m_rescan;
    QLabel* m_explanation;
    QWidget* m_notes;
    QVBoxLayout* m_notesLayout;
    QLabel* m_summary;
    QCheckBox* m_selectAll;
    QComboBox* m_sizeFilter;
    QLineEdit* m_search;
    QPushButton* m_askAboutShown;
    QPushButton* m_emptyTrash;
    QStackedWidget* m_content;
    QListView* m_list;
    QLabel* m_emptyState;
    CategoryListModel* m_listModel;
    CategoryItemDelegate* m_delegate;
    SelectionBar* m_selectionBar;
    TrashEmptier* m_trash;
    int m_scrollBeforeReload = 0;
};
