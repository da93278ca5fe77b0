#include "scan/TrashScanner.h"

#include "machinery/FileSizer.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/SystemPlaces.h"

#include <QCoreApplication>

namespace {

CleanupItem trashRow()
{
    CleanupItem item;
    item.id = TrashScanner::rowId;
    item.category = CategoryID::trash;
    //: Title of the one row of the Trash category
    item.title = QCoreApplication::translate("TrashScanner", "Trash");
    item.removal = Removal{Removal::EmptyTrash{}};
    return item;
}

ScanOutput withoutAccess()
{
    CleanupItem item = trashRow();
    //: Detail of the Trash row when Dustlark may not read the Trash
    item.detail = QCoreApplication::translate("TrashScanner", "Size unknown without Full Disk Access");
    return {{item}, {TrashScanner::fullDiskAccessNote()}, std::nullopt};
}

}  // namespace

QString TrashScanner::fullDiskAccessNote()
{
    //: Note above the Trash category without Full Disk Access
    return QCoreApplication::translate("TrashScanner",
        "macOS lets Dustlark measure the Trash only with Full Disk Access. Empty Trash works without it.");
}

QString TrashScanner::unreadableNote()
{
    //: Note above the Trash category when some of its items could not be read
    return QCoreApplication::translate("TrashScanner",
        "Some items in the Trash couldn't be read, so its size counts only the rest. Empty Trash removes them too.");
}

// An empty Trash gets no row: there is nothing to empty.
ScanOutputs TrashScanner::scan(const ScanContext& context) const
{
    if (!context.fullDiskAccess)
        return {{CategoryID::trash, withoutAccess()}};
    const QString folder = SystemPlaces::trashFolder(context.home);
    ScanOutput output;
    if (!FileStatus::exists(folder))
        return {{CategoryID::trash, output}};  // nothing was ever trashed here
    context.progress->setCurrentFolder(folder);
    const FileSizer::Measurement measured = FileSizer::measure(folder, context.progress.get(), &context.cancellation);
    if (measured.files == 0 && measured.unreadable == 0)
        return {{CategoryID::trash, output}};
    CleanupItem item = trashRow();
    item.size = measured.bytes;
    //: Detail of the Trash row; %n is the number of files in the Trash
    item.detail = QCoreApplication::translate("TrashScanner", "%n files", nullptr, int(measured.files));
    output.items.append(item);
    if (measured.unreadable > 0)
        output.notes.append(unreadableNote());
    return {{CategoryID::trash, output}};
}
