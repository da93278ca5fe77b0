#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>

namespace RemovalReasons {

QString outsideHome()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "It is outside your home folder.");
}

QString noLongerExists()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "It no longer exists.");
}

QString symbolicLink()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "It is a symbolic link.");
}

QString changedSinceScan()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "It changed since the scan. Scan again.");
}

QString pathThroughSymbolicLink()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "Its path goes through a symbolic link.");
}

QString folderUnreadable()
{
    //: Why an item can't be moved to the Trash
    return QCoreApplication::translate("Remover", "Its folder can't be read.");
}

QString gitLocked()
{
    //: Why a git worktree can't be selected; keep the command as is
    return QCoreApplication::translate("Remover", "Locked in git (git worktree lock).");
}

QString running()
{
    //: Why a running app can't be selected
    return QCoreApplication::translate("Remover", "Running. Quit it to remove it.");
}

QString changedInLastDay()
{
    //: Why an AI agent's session history can't be selected
    return QCoreApplication::translate("Remover", "Changed in the last day; a session may be running.");
}

QString emptyTrashInstead()
{
    //: Why the Trash row is not removed like other items
    return QCoreApplication::translate("Remover", "The Trash is emptied with Empty Trash.");
}

QString onSafeList()
{
    //: Why an item can't be moved to the Trash or another disk: the person put it on the Safe List
    return QCoreApplication::translate("Remover", "It is on the Safe List.");
}

QString holdsSafeListItem()
{
    //: Why a folder can't be moved to the Trash or another disk: something inside it is on the Safe List
    return QCoreApplication::translate("Remover", "Something inside it is on the Safe List.");
}

QString holdsTrash()
{
    //: Why a folder can't be moved to the Trash or another disk: the Trash itself is inside it
    return QCoreApplication::translate("Remover", "The Trash is inside it.");
}

QString keptByICloud()
{
    //: Why an item can't be moved to the Trash or another disk: it is iCloud's own data
    return QCoreApplication::translate("Remover", "iCloud keeps it, so Dustlark leaves it alone.");
}

QString ambiguousName()
{
    //: Why an item can't be moved to the Trash: its file name is not valid text, so it can't be told apart from a similar name
    return QCoreApplication::translate("Remover", "Its name can't be read exactly. Rename it to remove it.");
}

QString trashFailed(const QString& systemReason)
{
    if (systemReason.trimmed().isEmpty()) {
        //: Cleanup failure reason when the system's trash refused without saying why
        return QCoreApplication::translate("Remover", "It couldn't be moved to the Trash.");
    }
    //: Cleanup failure reason. The placeholder is the system's own description of the error.
    return QCoreApplication::translate("Remover", "It couldn't be moved to the Trash: %1").arg(systemReason.trimmed());
}

QString toolDidNotStart(const QString& systemReason)
{
    //: Cleanup failure reason. The placeholder is the system's reason, e.g. "No such file or directory".
    return QCoreApplication::translate("Remover", "The tool couldn't be started: %1").arg(systemReason);
}

}  // namespace RemovalReasons
