#include "ui/StorageBucketStyle.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace StorageBucketStyle {

QColor colour(StorageBucket bucket)
{
    // Distinct hues in the system's palette spirit, readable on light and dark backgrounds.
    static const std::array<QColor, StorageBuckets::count> colours{
        QColor(0x0a, 0x84, 0xff),  // apps: blue
        QColor(0x5e, 0x5c, 0xe6),  // developer: indigo
        QColor(0xff, 0x9f, 0x0a),  // photos: orange
        QColor(0xff, 0x37, 0x5f),  // videos: pink
        QColor(0xbf, 0x5a, 0xf2),  // music: purple
        QColor(0x30, 0xd1, 0x58),  // documents: green
        QColor(0xa2, 0x84, 0x5e),  // archives: brown
        QColor(0x64, 0xd2, 0xff),  // device backups: cyan
        QColor(0x40, 0xc8, 0xe0),  // mail: teal
        QColor(0xff, 0xd6, 0x0a),  // app data: yellow
        QColor(0xff, 0x45, 0x3a),  // trash: red
        QColor(0x98, 0x98, 0x9d),  // other: grey
    };
    return colours.at(static_cast<size_t>(bucket));
}

QColor remainderColour()
{
    return QColor(0xd1, 0xd1, 0xd6);
}

QIcon swatch(const QColor& colour)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(4, 4, 24, 24));
    return QIcon(pixmap);
}

}  // namespace StorageBucketStyle
