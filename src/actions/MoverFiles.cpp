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

std::optional<FileKey> keyAt(int folder, const QByteArray& name)
{
    struct stat info {};
    if (::fstatat(folder, name.constData(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return FileKey::of(info);
}

}  // namespace

Placement place(int workFolder, int destinationFolder, const QByteArray& name, std::vector<Made>& placed)
{
    const std::optional<FileKey> copy = keyAt(workFolder, name);
    if (!copy)
        return Placement::failed;
    int error = Platform::renameNoReplaceAt(workFolder, name.constData(), destinationFolder, name.constData());
    if (lacksExclusiveRename(error)) {
        // Not atomic: a name made between the check and the rename could be replaced. These
        // file systems offer nothing better.
        if (keyAt(destinationFolder, name))
            return Placement::nameTaken;
        if (errno != ENOENT)
            return Placement::failed;
        error = ::renameat(workFolder, name.constData(), destinationFolder, name.constData()) == 0 ? 0 : errno;
    }
    if (error == EEXIST || error == ENOTEMPTY)
        return Placement::nameTaken;
    if (error != 0)
        return Placement::failed;
    placed.push_back({name, *copy});
    return Placement::placed;
}

bool removeMade(int folder, const Made& made)
{
    // A tree that someone changes while it is removed (a folder swapped for a link, say) can keep
    // a part through one pass; each pass removes what the last one left, and stops once the
    // name no longer holds what the move made.
    constexpr int passes = 16;
    for (int pass = 0; pass < passes; ++pass) {
        if (TreeRemoval::removeAt(folder, made.name, made.key))
            return true;
        if (keyAt(folder, made.name) != made.key)
            return true;  // another object holds the name now; it is not ours to remove
    }
    return false;
}

bool keepsExactTimes(int folder)
{
    constexpr qint64 seconds = 1'000'000'001;
    constexpr long nanoseconds = 123'456'789;
    const struct timespec times[2] = {{0, UTIME_OMIT}, {seconds, nanoseconds}};
    struct stat info {};
    if (::futimens(folder, times) != 0 || ::fstat(folder, &info) != 0)
        return false;
    return Platform::modificationNanoseconds(info) == seconds * 1'000'000'000 + nanoseconds;
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
