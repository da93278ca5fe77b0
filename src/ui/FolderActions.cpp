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
}

}  // namespace FolderActions
