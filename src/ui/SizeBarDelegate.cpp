#include "ui/SizeBarDelegate.h"

#include <QPainter>

#include <algorithm>

void SizeBarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const qint64 bytes = index.data(bytesRole).toLongLong();
    if (m_maximum <= 0 || bytes <= 0)
        return;
    const QVariant colour = index.data(colourRole);
    QColor bar = colour.isValid() ? colour.value<QColor>() : option.palette.color(QPalette::Highlight);
    bar.setAlphaF(0.55);
    const QRect area = option.rect.adjusted(6, option.rect.height() - 5, -6, -2);
    const qreal share = std::min(1.0, static_cast<qreal>(bytes) / static_cast<qreal>(m_maximum));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(bar);
    painter->drawRoundedRect(QRectF(area.left(), area.top(), std::max(2.0, area.width() * share), area.height()), 1.5, 1.5);
    painter->restore();
}
