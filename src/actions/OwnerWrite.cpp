#include "actions/OwnerWrite.h"

#include "machinery/Descriptor.h"
#include "machinery/FolderListing.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace OwnerWrite {

namespace {

constexpr int depthLimit = 512;
constexpr int entryFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

// A folder also needs search and read permission to be entered and listed.
bool grant(int fd, const struct stat& info)
{
    const mode_t wanted = S_ISDIR(info.st_mode) ? S_IRWXU : S_IWUSR;
    if ((info.st_mode & wanted) == wanted)
        return true;
    return ::fchmod(fd, (info.st_mode & 07777) | wanted) == 0;
}

// Opens a folder entry; one its owner can't read is first given read and search permission
// through the folder, without following a link (that call fails on one).
Descriptor openEntry(int folder, const char* name, const struct stat& listed)
{
    Descriptor entry(::openat(folder, name, entryFlags | (S_ISDIR(listed.st_mode) ? O_DIRECTORY : 0)));
    if (entry.isValid() || errno != EACCES)
        return entry;
    if (::fchmodat(folder, name, (listed.st_mode & 07777) | S_IRWXU, AT_SYMLINK_NOFOLLOW) != 0)
        return entry;
    entry.reset(::openat(folder, name, entryFlags | (S_ISDIR(listed.st_mode) ? O_DIRECTORY : 0)));
    return entry;
}

bool addBelow(int folder, int depth);

// Only folders and regular files: links are left alone, and opening a device or a pipe could
// have effects of its own.
bool addEntry(int folder, const char* name, int depth)
{
    struct stat listed {};
    if (::fstatat(folder, name, &listed, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT;
    if (!S_ISDIR(listed.st_mode) && !S_ISREG(listed.st_mode))
        return true;
    const Descriptor entry = openEntry(folder, name, listed);
    struct stat opened {};
    if (!entry.isValid() || ::fstat(entry.get(), &opened) != 0)
        return false;
    if (opened.st_dev != listed.st_dev || opened.st_ino != listed.st_ino)
        return false;  // swapped between the two looks: leave whatever it is now alone
    const bool granted = grant(entry.get(), opened);
    return S_ISDIR(opened.st_mode) ? addBelow(entry.get(), depth + 1) && granted : granted;
}

bool addBelow(int folder, int depth)
{
    if (depth > depthLimit)
        return false;
    const std::optional<QByteArrayList> names = FolderListing::names(folder);
    if (!names)
        return false;
    bool allWritable = true;
    for (const QByteArray& name : *names) {
        if (!addEntry(folder, name.constData(), depth))
            allWritable = false;
    }
    return allWritable;
}

}  // namespace

bool addThroughTree(int root)
{
    struct stat info {};
    if (::fstat(root, &info) != 0)
        return false;
    if (!S_ISDIR(info.st_mode) && !S_ISREG(info.st_mode))
        return true;
    const bool granted = grant(root, info);
    return S_ISDIR(info.st_mode) ? addBelow(root, 0) && granted : granted;
}

bool addThroughTree(const QString& path)
{
    const Descriptor root(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return root.isValid() ? addThroughTree(root.get()) : errno == ELOOP;
}

}  // namespace OwnerWrite
