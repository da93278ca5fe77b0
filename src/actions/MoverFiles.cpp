#include "actions/MoverFiles.h"

#include "actions/TreeRemoval.h"
#include "machinery/TreeWalker.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
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
            TreeRemoval::removeTree(copy.path);
    }
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
    // Each regular file of the original against its twin at the same place in the copy.
    struct Comparison : TreeVisitor {
        qsizetype rootLength = 0;
        QByteArray copyRoot;
        Verdict visitItem(const TreeEntry& entry) override
        {
            const struct stat& file = entry.status();
            if (!S_ISREG(file.st_mode) || entry.name() == ".DS_Store")
                return Verdict::Enter;
            const QByteArray twin = copyRoot + entry.pathBytes().mid(rootLength);
            struct stat info {};
            if (::lstat(twin.constData(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size != file.st_size)
                return Verdict::Stop;
            const qint64 difference = Platform::modificationNanoseconds(info) - Platform::modificationNanoseconds(file);
            return std::llabs(difference) <= coarseTolerance ? Verdict::Enter : Verdict::Stop;
        }
    } comparison;
    const QByteArray root = QFile::encodeName(original);
    comparison.rootLength = root.size();
    comparison.copyRoot = QFile::encodeName(copy);
    return TreeWalker({}).walk(root, comparison).end != TreeWalker::End::Stopped;
}

std::optional<qint64> freeBytes(const QString& path)
{
    return Platform::availableCapacity(path);
}

}  // namespace Mover::Files
