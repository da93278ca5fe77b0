#include "scan/OldDownloadsScanner.h"

#include "format/RelativeDate.h"
#include "machinery/FileInfo.h"
#include "scan/InstallersScanner.h"
#include "scan/NewestChange.h"
#include "scan/StampedTarget.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/Thresholds.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>
#include <sys/stat.h>

namespace {

constexpr qint64 secondsPerDay = 86'400;

// Files the large-files category lists; their size is their logical length there.
bool isLargeFile(const struct stat& info)
{
    return S_ISREG(info.st_mode) && info.st_size >= Thresholds::largeFileSize;
}

bool isListedElsewhere(const QString& path, const struct stat& info)
{
    return InstallersScanner::isInstaller(path.section(QLatin1Char('/'), -1)) || isLargeFile(info);
}

}  // namespace

// A download counts as old by the newest change inside it: Linux doesn't record when a file
// was added to a folder, and a folder unpacked from an archive is as new as its unpacking.
std::optional<CleanupItem> OldDownloadsScanner::row(const QString& path, const ScanContext& context)
{
    const auto info = FileStatus::of(path);
    if (!info || S_ISLNK(info->st_mode) || isListedElsewhere(path, *info))
        return std::nullopt;
    const qint64 cutoff = context.now.toSecsSinceEpoch() - Thresholds::oldDownloadsDays * secondsPerDay;
    const std::optional<qint64> newest = NewestChange::of(path, &context.cancellation);
    if (!newest || *newest >= cutoff)
        return std::nullopt;
    const std::optional<StampedTarget::Measured> measured = StampedTarget::measured(path, context);
    if (!measured)
        return std::nullopt;
    CleanupItem item;
    item.id = path;
    item.category = CategoryID::oldDownloads;
    item.title = path.section(QLatin1Char('/'), -1);
    item.size = measured->bytes;
    item.removal = Removal::trash({measured->target});
    item.date = QDateTime::fromSecsSinceEpoch(*newest, QTimeZone::utc());
    //: Detail of an Old Downloads row; %1 is a relative date like '5 months ago'
    item.detail = QCoreApplication::translate("OldDownloadsScanner", "last changed %1")
                      .arg(RelativeDate::marker(*item.date));
    if (S_ISDIR(info->st_mode))
        //: Badge of an Old Downloads row that is a folder
        item.badge = QCoreApplication::translate("OldDownloadsScanner", "Folder");
    return item;
}

QString OldDownloadsScanner::unreadableNote(Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop)
        //: Note above Old Downloads on Linux when the Downloads folder can't be read
        return QCoreApplication::translate("OldDownloadsScanner", "Downloads couldn't be read: its permissions don't let you open it.");
    //: Note above Old Downloads when the Downloads folder can't be read
    return QCoreApplication::translate("OldDownloadsScanner", "Downloads couldn't be read. Allow access when macOS asks.");
}

ScanOutputs OldDownloadsScanner::scan(const ScanContext& context) const
{
    const QString downloads = context.home + QStringLiteral("/Downloads");
    ScanOutput output;
    if (FileStatus::exists(downloads) && !FileInfo::canList(downloads)) {
        output.notes.append(unreadableNote());
        return {{CategoryID::oldDownloads, output}};
    }
    QStringList names = FileInfo::children(downloads);
    std::sort(names.begin(), names.end());
    context.progress->setCurrentFolder(downloads);
    for (const QString& name : names) {
        if (context.isCancelled())
            break;
        if (name.startsWith(QLatin1Char('.')))
            continue;  // the system's own bookkeeping (.DS_Store, .localized)
        if (auto item = row(downloads + QLatin1Char('/') + name, context))
            output.items.append(*item);
    }
    return {{CategoryID::oldDownloads, output}};
}
