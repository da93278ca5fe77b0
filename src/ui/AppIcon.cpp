#include "ui/AppIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <tuple>

namespace AppIcon {

namespace {

void drawTile(QPainter& painter, qreal size)
{
    QLinearGradient dusk(0, 0, 0, size);
    dusk.setColorAt(0, QColor(0x3a, 0x5b, 0xa0));
    dusk.setColorAt(1, QColor(0x1f, 0x2f, 0x5c));
    QPainterPath tile;
    tile.addRoundedRect(QRectF(0, 0, size, size).adjusted(size * 0.06, size * 0.06, -size * 0.06, -size * 0.06),
                        size * 0.2, size * 0.2);
    painter.fillPath(tile, dusk);
}

void drawSweep(QPainter& painter, qreal size)
{
    QPen arc(QColor(0xf4, 0xc4, 0x6a), size * 0.07, Qt::SolidLine, Qt::RoundCap);
    painter.setPen(arc);
    painter.drawArc(QRectF(size * 0.2, size * 0.28, size * 0.6, size * 0.5), 190 * 16, 120 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xff, 0xff, 0xe0));
    // Specks scattered off the arc's end, as if swept up; x, y and radius as parts of the tile.
    for (const auto& [x, y, radius] : {std::tuple(0.68, 0.36, 0.055), std::tuple(0.56, 0.25, 0.04),
                                       std::tuple(0.76, 0.22, 0.03)})
        painter.drawEllipse(QPointF(x * size, y * size), radius * size, radius * size);
}

}  // namespace

QPixmap pixmap(int size, qreal devicePixelRatio)
{
    QPixmap image(QSize(size, size) * devicePixelRatio);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter, size);
    drawSweep(painter, size);
    return image;
}

QIcon icon()
{
    QIcon result;
    for (int size : {16, 32, 64, 128, 256})
        result.addPixmap(pixmap(size));
    return result;
}

}  // namespace AppIcon
