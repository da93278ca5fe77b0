#include "actions/OwnerWrite.h"

#include <QFile>

#include <fts.h>
#include <sys/stat.h>

namespace OwnerWrite {

namespace {

bool needsWrite(const FTSENT* entry)
{
    switch (entry->fts_info) {
    case FTS_D:
    case FTS_DNR:
    case FTS_F:
    case FTS_DEFAULT:
        return (entry->fts_statp->st_mode & S_IWUSR) == 0;
    default:
        return false;  // links, post-order folders, entries without status
    }
}

// A folder also needs search and read permission to be entered and listed.
mode_t withOwnerAccess(const FTSENT* entry)
{
    const mode_t mode = entry->fts_statp->st_mode & 07777;
    if (entry->fts_info == FTS_F || entry->fts_info == FTS_DEFAULT)
        return mode | S_IWUSR;
    return mode | S_IRWXU;
}

}  // namespace

bool addThroughTree(const QString& path)
{
    QByteArray root = QFile::encodeName(path);
    char* roots[] = {root.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree)
        return false;
    bool allWritable = true;
    while (FTSENT* entry = ::fts_read(tree)) {
        if (entry->fts_info == FTS_NS || entry->fts_info == FTS_ERR)
            allWritable = false;
        if (needsWrite(entry) && ::chmod(entry->fts_accpath, withOwnerAccess(entry)) != 0)
            allWritable = false;
    }
    ::fts_close(tree);
    return allWritable;
}

}  // namespace OwnerWrite
