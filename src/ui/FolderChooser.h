#pragma once

#include <QList>
#include <QString>
#include <QUrl>

class QFileDialog;
class QWidget;

// The one folder chooser of the app (scan folders, a move's destination): it opens in the home
// folder, lists the home folder and every mounted disk on its side, and leaves no completion
// list of its name field floating once it has closed.
namespace FolderChooser {

[[nodiscard]] QFileDialog* make(QWidget* parent, const QString& title);

// The home folder, then the root of every disk mounted now ("/", a USB disk under /media).
[[nodiscard]] QList<QUrl> places();

}  // namespace FolderChooser
