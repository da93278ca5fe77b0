#pragma once

#include <QString>

class AppModel;
class QMenu;
class QWidget;

// The actions of a folder row on the storage screens: show it in the file manager, or put it
// on the Safe List so that scans never show anything inside it.
namespace FolderActions {

void addTo(QMenu* menu, AppModel* model, const QString& path);

}  // namespace FolderActions
