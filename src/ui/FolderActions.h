#pragma once

#include <QString>

class AppModel;
class QMenu;
class QWidget;

// The actions of a folder row on the storage screens: show it in the file manager, put it on
// the Safe List so that scans never show anything inside it, or measure it again alone.
namespace FolderActions {

void addTo(QMenu* menu, AppModel* model, const QString& path);
// "Measure This Folder Again", enabled where the report keeps the folder and nothing is measured.
void addRemeasure(QMenu* menu, AppModel* model, const QString& path);
QString remeasureTitle();

}  // namespace FolderActions
