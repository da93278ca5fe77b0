#include "scan/NewestChange.h"

#include <QFile>

#include <algorithm>
#include <fts.h>
#include <sys/stat.h>

namespace NewestChange {

namespace {

constexpr qint64 cancellationInterval = 1024;

// False when the entry adds no time: a folder left (seen on the way in) or one that can't be read.
bool hasTime(const FTSENT* entry)
{
    switch (entry->fts_info) {
    case FTS_DP:
    case FTS_NS:
    case FTS_ERR:
        return false;
    default:
        return entry->fts_statp != nullptr;
    }
}

}  // namespace

std::optional<qint64> of(const QString& path, const CancellationToken* cancellation, qint64 limit)
{
    QByteArray encoded = QFile::encodeName(path);
    char* roots[] = {encoded.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree)
        return std::nullopt;
    qint64 newest = 0;
    qint64 entries = 0;
    bool finished = true;
    while (const FTSENT* entry = ::fts_read(tree)) {
        if (!hasTime(entry))
            continue;
        const bool stopped = entries % cancellationInterval == 0 && cancellation && cancellation->isCancelled();
        if (++entries > limit || stopped) {
            finished = false;
            break;
        }
        newest = std::max(newest, qint64(entry->fts_statp->st_mtime));
    }
    ::fts_close(tree);
    if (!finished || newest <= 0)
        return std::nullopt;
    return newest;
}

}  // namespace NewestChange
