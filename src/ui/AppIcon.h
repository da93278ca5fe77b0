#pragma once

#include <QIcon>

// The app's icon, drawn rather than shipped as an image so every size is sharp and the Linux
// build needs no image files: a dusk-blue tile with a swept arc and three specks.
namespace AppIcon {

QIcon icon();
QPixmap pixmap(int size, qreal devicePixelRatio = 1.0);

}  // namespace AppIcon
