#include "prompt/LargestContents.h"

#include "machinery/FileInfo.h"
#include "machinery/FileSizer.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>

namespace {

bool isRealFolder(const QString& path)
{
    return FileStatus::isFolder(path);
}

bool isCancelled(const CancellationToken* cancellation)
{
    return cancellation && cancellation->isCancelled();
}

}  // namespace

LargestContents LargestContents::read(const QString& folder, int limit, const CancellationToken* cancellation)
{
    QList<Entry> measured;
    const QDir dir(folder);
    for (const QString& name : FileInfo::children(folder)) {
        if (isCancelled(cancellation))
            break;
        const FileSizer::Measurement size = FileSizer::measure(dir.filePath(name), nullptr, cancellation);
        measured.append({name, size.bytes});
    }
    std::sort(measured.begin(), measured.end(), [](const Entry& a, const Entry& b) {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.name < b.name;
    });
    LargestContents result;
    const qsizetype kept = std::min<qsizetype>(std::max(limit, 0), measured.size());
    result.entries = measured.first(kept);
    result.moreEntries = measured.size() - kept;
    return result;
}

std::optional<LargestContents> LargestContents::of(const CleanupItem& item, int limit,
                                                   const CancellationToken* cancellation)
{
    const QStringList paths = item.removal.paths();
    if (paths.size() != 1 || !isRealFolder(paths.first()))
        return std::nullopt;
    return read(paths.first(), limit, cancellation);
}
