#pragma once

#include <QImage>
#include <QString>

#include <functional>

// One picture for the docs: a name ("overview.png") and how to draw it. A scene returns a null
// image when its window did not reach the state it shows.
struct Scene {
    QString name;
    std::function<QImage()> draw;
};

// The scenes of each screen, one file each.
QList<Scene> categoryScenes();
QList<Scene> pageScenes();
QList<Scene> storageScenes();
QList<Scene> moveScenes();

// The window with a sheet laid over it the way macOS shows one: centred under the toolbar.
QImage withSheet(QWidget& window, QWidget& sheet);
