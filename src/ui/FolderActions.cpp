#include "ui/FolderActions.h"

#include "model/AppModel.h"
#include "ui/MoveSheet.h"
#include "ui/Reveal.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QMenu>
#include <QTreeWidget>

#include <algorithm>

namespace FolderActions {

namespace {

// An action that can't be taken now stays in the menu, its reason on hover.
void unavailable(QAction* action, const std::optional<QString>& reason)
{
    action->setEnabled(!reason);
    action->setToolTip(reason.value_or(action->text()));
}

}  // namespace

void addTo(QMenu* menu, AppModel* model, const QString& path, qint64 bytes, QWidget* window)
{
    const CleanupItem item = model->storageItem(path, bytes);
    menu->setToolTipsVisible(true);
    menu->addAction(Reveal::title(), menu, [model, path] { Reveal::show(model, path); });
    //: Row menu of a storage folder or file: never show anything inside it in scans
    menu->addAction(QCoreApplication::translate("FolderActions", "Add to Safe List"), menu, [model, path] { model->addFolderToSafeList(path); });
    if (model->storageKeepsFolder(path))
        addRemeasure(menu, model, path);
    menu->addSeparator();
    //: Row menu of a storage folder or file: copy it to another disk, check the copy, then trash the original
    QAction* move = menu->addAction(QCoreApplication::translate("FolderActions", "Move to Another Disk…"), menu, [model, item, window] { MoveSheet::open(model, item, window); });
    unavailable(move, item.lockedReason);
    //: Row menu of a storage folder or file: move it to the Trash after the cleanup's confirmation
    QAction* trash = menu->addAction(QCoreApplication::translate("FolderActions", "Move to Trash"), menu, [model, item] { model->prepareRemoval(item); });
    unavailable(trash, item.lockedReason);
    if (!item.lockedReason && !model->canPrepareCleanup())
        //: Why a storage row's Move to Trash is unavailable: the app is scanning, cleaning or moving something else
        unavailable(trash, QCoreApplication::translate("FolderActions", "Dustlark is busy with a scan, a cleanup or a move."));
}

void markGone(QTreeWidget* list, int pathRole, const AppModel* model)
{
    const QStringList& gone = model->storageGone();
    if (gone.isEmpty())
        return;
    const QColor grey = list->palette().color(QPalette::Disabled, QPalette::Text);
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = list->topLevelItem(i);
        const QString path = row->data(0, pathRole).toString();
        if (path.isEmpty() || std::none_of(gone.begin(), gone.end(), [&](const QString& each) { return PathRules::isAtOrBelow(path, each); }))
            continue;
        for (int column = 0; column < list->columnCount(); ++column)
            row->setForeground(column, grey);
        //: Tooltip of a storage row whose folder or file was moved to the Trash or another disk after the disk was measured
        row->setToolTip(0, QCoreApplication::translate("FolderActions", "Moved away since the disk was measured."));
    }
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
