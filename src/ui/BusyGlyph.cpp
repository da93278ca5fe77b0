#include "ui/BusyGlyph.h"

#include <QPainter>
#include <QPixmap>

namespace BusyGlyph {

QIcon frame(int step, const QColor& color, int size)
{
    const qreal scale = 2.0;  // sharp on high-density screens too
    QPixmap pixmap(QSize(size, size) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(color, 1.8);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    const QRectF ring(2, 2, size - 4, size - 4);
    const int startAngle = -(step % frameCount) * (360 / frameCount) * 16;
    painter.drawArc(ring, startAngle, 270 * 16);
    return QIcon(pixmap);
}

}  // namespace BusyGlyph
