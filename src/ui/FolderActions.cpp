#include "ui/FolderActions.h"

#include "model/AppModel.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QUrl>

namespace FolderActions {

void addTo(QMenu* menu, AppModel* model, const QString& path)
{
    //: Row menu of a storage folder: open the folder that holds it in the file manager
    menu->addAction(QCoreApplication::translate("FolderActions", "Show in Finder"), menu, [path] { reveal(path); });
    //: Row menu of a storage folder: never show anything inside it in scans
    menu->addAction(QCoreApplication::translate("FolderActions", "Add to Safe List"), menu, [model, path] { model->addFolderToSafeList(path); });
}

void reveal(const QString& path)
{
    // Opening the parent folder is the portable way; it needs no file-system call here.
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
}

}  // namespace FolderActions
