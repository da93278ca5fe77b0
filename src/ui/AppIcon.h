#pragma once

#include <QIcon>

// The app's icon, rendered from the one SVG drawing that is built into the app (the installed
// hicolor PNGs and the macOS .icns are made from the same file), so every size is sharp and the
// running app reads no image from disk: a dusk-blue tile with a swept arc and three specks.
namespace AppIcon {

QIcon icon();
QPixmap pixmap(int size, qreal devicePixelRatio = 1.0);

}  // namespace AppIcon
