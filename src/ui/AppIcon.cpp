#include "ui/AppIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace AppIcon {

QPixmap pixmap(int size, qreal devicePixelRatio)
{
    QPixmap image(QSize(size, size) * devicePixelRatio);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    QSvgRenderer drawing(QStringLiteral(":/icons/app.dustlark.Dustlark.svg"));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, QRectF(0, 0, size, size));
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
