#include "ui/FolderActions.h"

#include "model/AppModel.h"
#include "ui/Reveal.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QUrl>

namespace FolderActions {

void addTo(QMenu* menu, AppModel* model, const QString& path)
{
    menu->addAction(Reveal::title(), menu, [model, path] { Reveal::show(model, path); });
    //: Row menu of a storage folder: never show anything inside it in scans
    menu->addAction(QCoreApplication::translate("FolderActions", "Add to Safe List"), menu, [model, path] { model->addFolderToSafeList(path); });
    addRemeasure(menu, model, path);
}

void addRemeasure(QMenu* menu, AppModel* model, const QString& path)
{
    QAction* action = menu->addAction(remeasureTitle(), menu, [model, path] { model->remeasureFolder(path); });
    action->setEnabled(model->canRemeasureFolder(path));
}

QString remeasureTitle()
{
    //: Row menu item and button of the storage screens: measure only this folder again
    return QCoreApplication::translate("FolderActions", "Measure This Folder Again");
}

}  // namespace FolderActions
