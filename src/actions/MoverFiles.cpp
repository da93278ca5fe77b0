#include "actions/MoverFiles.h"

#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fts.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Mover::Files {

namespace {

constexpr qint64 coarseTolerance = 2'000'000'000;  // FAT's two seconds, in nanoseconds

// What a file system without exclusive rename answers when asked for one.
bool lacksExclusiveRename(int error)
{
    return error == EINVAL || error == ENOTSUP || error == EOPNOTSUPP || error == ENOSYS;
}

bool rememberPlaced(const QString& path, std::vector<Placed>& placed)
{
    const std::optional<struct stat> info = FileStatus::of(path);
    if (!info)
        return false;
    placed.push_back({path, info->st_dev, info->st_ino});
    return true;
}

// Calls `visit` for every entry below `root`, physical, one volume, no chdir; false when the
// walk could not start.
template <typename Visit>
bool walk(const QString& root, int options, Visit visit)
{
    QByteArray path = QFile::encodeName(root);
    char* roots[] = {path.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV | options, nullptr);
    if (!tree)
        return false;
    bool going = true;
    while (going) {
        FTSENT* entry = ::fts_read(tree);
        if (!entry)
            break;
        going = visit(entry);
    }
    ::fts_close(tree);
    return going;
}

}  // namespace

Placement place(const QString& from, const QString& to, std::vector<Placed>& placed)
{
    int error = Platform::renameNoReplace(from, to);
    if (lacksExclusiveRename(error)) {
        // Not atomic: a name made between the check and the rename could be replaced. These
        // file systems offer nothing better.
        if (FileStatus::exists(to))
            return Placement::nameTaken;
        error = ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ? 0 : errno;
    }
    if (error == EEXIST || error == ENOTEMPTY)
        return Placement::nameTaken;
    if (error != 0 || !rememberPlaced(to, placed))
        return Placement::failed;
    return Placement::placed;
}

void removePlaced(const std::vector<Placed>& placed)
{
    for (const Placed& copy : placed) {
        const std::optional<struct stat> info = FileStatus::of(copy.path);
        if (info && info->st_dev == copy.device && info->st_ino == copy.inode)
            removeTree(copy.path);
    }
}

bool removeTree(const QString& path)
{
    if (!FileStatus::exists(path))
        return true;
    walk(path, 0, [](FTSENT* entry) {
        switch (entry->fts_info) {
        case FTS_D:
            // The copy keeps the original's modes; a read-only folder must open before emptying.
            ::chmod(entry->fts_accpath, (entry->fts_statp->st_mode & 07777) | S_IRWXU);
            break;
        case FTS_DP:
            ::rmdir(entry->fts_accpath);
            break;
        case FTS_DNR:
        case FTS_ERR:
            ::rmdir(entry->fts_accpath);
            break;
        default:
            ::unlink(entry->fts_accpath);
        }
        return true;
    });
    return !FileStatus::exists(path);
}

bool keepsExactTimes(const QString& folder)
{
    constexpr qint64 seconds = 1'000'000'001;
    constexpr long nanoseconds = 123'456'789;
    const struct timespec times[2] = {{0, UTIME_OMIT}, {seconds, nanoseconds}};
    if (::utimensat(AT_FDCWD, QFile::encodeName(folder).constData(), times, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    const std::optional<struct stat> info = FileStatus::of(folder);
    return info && Platform::modificationNanoseconds(*info) == seconds * 1'000'000'000 + nanoseconds;
}

bool timesMatchCoarsely(const QString& original, const QString& copy)
{
    QByteArray root = QFile::encodeName(original);
    const qsizetype rootLength = root.size();
    const QByteArray copyRoot = QFile::encodeName(copy);
    return walk(original, 0, [&](FTSENT* entry) {
        if (entry->fts_info != FTS_F || std::strcmp(entry->fts_name, ".DS_Store") == 0)
            return true;
        const QByteArray twin = copyRoot + QByteArray(entry->fts_path).mid(rootLength);
        struct stat info {};
        if (::lstat(twin.constData(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size != entry->fts_statp->st_size)
            return false;
        const qint64 difference = Platform::modificationNanoseconds(info) - Platform::modificationNanoseconds(*entry->fts_statp);
        return std::llabs(difference) <= coarseTolerance;
    });
}

}  // namespace Mover::Files
