#include "scan/DevicesScanner.h"

#include "format/RelativeDate.h"
#include "machinery/FileInfo.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "scan/PropertyList.h"
#include "scan/StampedTarget.h"
#include "vocabulary/FileStatus.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct BackupFacts {
    std::optional<QString> deviceName;
    std::optional<QDateTime> lastBackup;
};

// Finder writes the device's name and the time of the last backup into the backup's Info.plist
// (binary or XML); an old or half-written backup may lack either, or the whole file.
BackupFacts factsOf(const QString& folder)
{
    const auto list = PropertyList::read(folder + QStringLiteral("/Info.plist"));
    if (!list)
        return {};
    std::optional<QString> name = list->string(QStringLiteral("Device Name"));
    if (!name || name->trimmed().isEmpty())
        name = list->string(QStringLiteral("Display Name"));
    if (name && name->trimmed().isEmpty())
        name.reset();
    return {name, list->date(QStringLiteral("Last Backup Date"))};
}

QString backupDetail(const BackupFacts& facts)
{
    if (!facts.lastBackup)
        //: Detail of a device backup whose date can't be read
        return QCoreApplication::translate("DevicesScanner", "date unknown");
    //: Detail of a device backup; %1 is a relative date like '2 years ago'
    return QCoreApplication::translate("DevicesScanner", "backed up %1").arg(RelativeDate::marker(*facts.lastBackup));
}

QList<CleanupItem> backupRows(const QString& backups, const ScanContext& context)
{
    QStringList names = FileInfo::children(backups);
    std::sort(names.begin(), names.end());
    QList<CleanupItem> rows;
    for (const QString& name : names) {
        if (context.isCancelled())
            break;
        const QString folder = backups + QLatin1Char('/') + name;
        if (name.startsWith(QLatin1Char('.')) || !FileStatus::isFolder(folder))
            continue;
        if (auto row = DevicesScanner::backupRow(folder, context))
            rows.append(*row);
    }
    return rows;
}

}  // namespace

std::optional<CleanupItem> DevicesScanner::backupRow(const QString& folder, const ScanContext& context)
{
    const std::optional<StampedTarget::Measured> measured = StampedTarget::measured(folder, context);
    if (!measured)
        return std::nullopt;
    const BackupFacts facts = factsOf(folder);
    CleanupItem item;
    item.id = folder;
    item.category = CategoryID::devices;
    //: Title of a device backup whose device name can't be read
    item.title = facts.deviceName.value_or(QCoreApplication::translate("DevicesScanner", "iPhone or iPad backup"));
    //: Badge of a device backup row
    item.badge = QCoreApplication::translate("DevicesScanner", "Backup");
    item.detail = backupDetail(facts);
    item.date = facts.lastBackup;
    item.size = measured->bytes;
    item.removal = Removal::trash({measured->target});
    return item;
}

QString DevicesScanner::backupsFolder(const QString& home)
{
    return home + QStringLiteral("/Library/Application Support/MobileSync/Backup");
}

QString DevicesScanner::fullDiskAccessNote()
{
    //: Note above iPhone & iPad when backups can't be listed
    return QCoreApplication::translate("DevicesScanner", "Device backups can be listed only with Full Disk Access.");
}

ScanOutputs DevicesScanner::scan(const ScanContext& context) const
{
    ScanOutput output;
    const LocationScanner::Candidates updates = LocationScanner::candidates(KnownLocations::devices(), context);
    output.items = LocationScanner::measure(updates.list, CategoryID::devices, context);
    const QString backups = backupsFolder(context.home);
    // Without Full Disk Access macOS hides the folder's contents, and may hide the folder too.
    if (!context.fullDiskAccess || (FileStatus::exists(backups) && !FileInfo::canList(backups))) {
        output.notes.append(fullDiskAccessNote());
        return {{CategoryID::devices, output}};
    }
    output.items += backupRows(backups, context);
    return {{CategoryID::devices, output}};
}
