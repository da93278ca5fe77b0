#pragma once

#include <QString>

class AppModel;
class QMenu;
class QTreeWidget;
class QWidget;

// The actions of a folder or file row on the storage screens, as a scan's rows have them: show
// it in the file manager, put it on the Safe List, measure a folder again alone, move it to
// another disk or to the Trash through the same sheets, checks and results as a cleanup.
namespace FolderActions {

// Adds the actions for `path`, measured at `bytes`. A move or removal that must not touch it is
// offered disabled, its tooltip saying why; `window` holds the move sheet.
void addTo(QMenu* menu, AppModel* model, const QString& path, qint64 bytes, QWidget* window);

// Greys the rows of `list` (their path in `pathRole` of column 0) that a cleanup or a move took
// away after the report was measured, and says so in their tooltip.
void markGone(QTreeWidget* list, int pathRole, const AppModel* model);

// "Measure This Folder Again", enabled where the report keeps the folder and nothing is measured.
void addRemeasure(QMenu* menu, AppModel* model, const QString& path);
QString remeasureTitle();

}  // namespace FolderActions
