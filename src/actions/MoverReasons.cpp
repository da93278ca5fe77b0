#include "actions/MoverReasons.h"

#include "format/ByteCount.h"

#include <QCoreApplication>

namespace Mover::Reasons {

QString destinationUnavailable()
{
    //: Move to Another Disk error: the chosen folder is missing or not a folder
    return QCoreApplication::translate("Mover", "The destination folder isn't available.");
}

QString destinationNotWritable()
{
    //: Move to Another Disk error: no permission to write into the chosen folder
    return QCoreApplication::translate("Mover", "Dustlark can't write to that folder.");
}

QString sameDisk()
{
    //: Move to Another Disk error: the chosen folder is on the disk the item is on
    return QCoreApplication::translate("Mover", "That folder is on the same disk, so moving there frees no space. Choose another disk.");
}

QString insideItself()
{
    //: Move to Another Disk error: the chosen folder lies inside the item being moved
    return QCoreApplication::translate("Mover", "That folder is inside the item itself. Choose another folder.");
}

QString sameNameTwice(const QString& name)
{
    //: Move to Another Disk error: two parts of the item differ only in upper and lower case; %1 is the name
    return QCoreApplication::translate("Mover", "Two parts of it are named “%1”, so they can't go into one folder.").arg(name);
}

QString nameTaken(const QString& name)
{
    //: Move to Another Disk error: the destination already holds something of that name; %1 is the name
    return QCoreApplication::translate("Mover", "“%1” already exists in that folder.").arg(name);
}

QString onlyFilesAndFolders()
{
    //: Move to Another Disk error: the row is a Docker object, a simulator or the Trash
    return QCoreApplication::translate("Mover", "Only files and folders can be moved to another disk.");
}

QString unreadable()
{
    //: Move to Another Disk error: some entries of the item can't be read
    return QCoreApplication::translate("Mover", "Some files in it can't be read, so the copy couldn't be checked. Nothing was changed.");
}

QString notEnoughSpace(qint64 needed, qint64 free)
{
    //: Move to Another Disk error: %1 is the size needed, %2 the free space, e.g. "12 GB"
    return QCoreApplication::translate("Mover", "Not enough space on that disk: %1 needed, %2 free.")
        .arg(ByteCount::format(needed), ByteCount::format(free));
}

QString leftoverWorkFolder()
{
    //: Move to Another Disk error: a work folder of an earlier, interrupted move is in the destination
    return QCoreApplication::translate("Mover", "“Dustlark unfinished move” is still in that folder from an earlier move. Check it and remove it, then try again.");
}

QString copyFailed(const QString& toolMessage)
{
    //: Move to Another Disk error: the copy tool failed; %1 is its message
    return QCoreApplication::translate("Mover", "Copy failed: %1").arg(toolMessage);
}

QString originalChanged()
{
    //: Move to Another Disk error: a file of the original was changed during the copy
    return QCoreApplication::translate("Mover", "The original changed while it was copied. Nothing was changed; try again.");
}

QString copyMismatch(qint64 copyFiles, qint64 originalFiles)
{
    //: Move to Another Disk error: the copy differs from the original; %1 is the copy's file count, %2 the original's
    return QCoreApplication::translate("Mover", "The copy didn't match the original (%1 of %2 files). The original wasn't changed.")
        .arg(copyFiles).arg(originalFiles);
}

QString copyReadBackWrong()
{
    //: Move to Another Disk error: a copied file read back from the destination disk held other bytes than the original
    return QCoreApplication::translate("Mover", "The copy on that disk couldn't be read back correctly, so it was removed. The original wasn't changed.");
}

QString changedAfterCheck(const QString& copy, const QStringList& placesInTrash)
{
    //: Move to Another Disk: the copy is in place and the original went to the Trash, but the original was changed after the copy was checked. %1 is where the copy is, %2 where the changed original is in the Trash (one or more paths)
    return QCoreApplication::translate("Mover", "The copy is at %1, but the original changed after the copy was checked. Its newer content is in the Trash: %2")
        .arg(copy, placesInTrash.join(QStringLiteral(", ")));
}

QString trashFailed(const QString& reason)
{
    //: Move to Another Disk error: the verified copy is in place but the original stayed; %1 is the reason
    return QCoreApplication::translate("Mover", "Copied and verified, but the original couldn't go to the Trash: %1").arg(reason);
}

QString stopped()
{
    //: Move to Another Disk: the person pressed Stop or quit; everything copied was removed
    return QCoreApplication::translate("Mover", "Stopped. The original wasn't changed.");
}

QString partsLeft(const QString& reason, const QStringList& paths)
{
    //: Move to Another Disk error: after a failed move, part of the copy could not be removed from the destination. %1 is the sentence of the failure, %2 the path (or paths) still there
    return QCoreApplication::translate("Mover", "%1 Part of the copy couldn't be removed and is still at %2.")
        .arg(reason, paths.join(QStringLiteral(", ")));
}

}  // namespace Mover::Reasons
