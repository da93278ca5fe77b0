#pragma once

#include <QStyledItemDelegate>

class CategoryListModel;

// Paints one row of a category list and answers clicks on it: the checkbox, the title with its
// badge, the detail line (or the reason a row is locked), the size, the date and the safety
// label. Rows are painted, never built from widgets, so a list of any length stays light.
class CategoryItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    // Where the parts of an item row lie within its rectangle.
    struct Geometry {
        QRect checkbox;
        QRect title;
        QRect detail;
        QRect size;
        QRect date;
        QRect safety;
        QRect more;  // the ••• button that opens the row's menu
    };

    // Space left and right of a row's contents.
    static constexpr int sidePadding = 12;

    // `home` decides a row's safety label (temporary items inside it are the person's own).
    CategoryItemDelegate(const CategoryListModel* model, QString home, QObject* parent = nullptr);

    Geometry geometry(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

signals:
    // The Ask AI label of a row was clicked.
    void askAIClicked(const QModelIndex& index);
    // The row's ••• button was clicked; `at` is where the menu opens, in the view's viewport.
    void menuRequested(const QModelIndex& index, const QPoint& at);

private:
    void paintItem(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintSection(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintCheckbox(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                       const QRect& rect) const;
    void paintTitle(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                    const QRect& rect) const;
    void paintDetail(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                     const QRect& rect) const;
    void paintSafety(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                     const QRect& rect) const;
    void paintMoreButton(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const;
    bool toggle(QAbstractItemModel* model, const QModelIndex& index) const;

    const CategoryListModel* m_model;
    QString m_home;
};
