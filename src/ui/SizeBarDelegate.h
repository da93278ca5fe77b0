#pragma once

#include <QStyledItemDelegate>

// Paints a size cell with a thin bar under its text, as long as the row's share (its bytes under
// `bytesRole`) of the largest row, in the row's colour (`colourRole`) or the highlight colour.
// Painted, so long lists stay light.
class SizeBarDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int bytesRole = Qt::UserRole + 10;
    static constexpr int colourRole = Qt::UserRole + 11;

    using QStyledItemDelegate::QStyledItemDelegate;

    // The bytes of the largest row; bars are drawn relative to it.
    void setMaximum(qint64 bytes) { m_maximum = bytes; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    qint64 m_maximum = 0;
};
