#include "actions/OwnerWrite.h"

#include "machinery/Descriptor.h"
#include "machinery/FolderListing.h"
#include "platform/Platform.h"

#include <QByteArray>

#include <cerrno>
#include <fcntl.h>

namespace OwnerWrite {

namespace {

constexpr int depthLimit = 512;
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

// A folder also needs read and search permission to be listed and entered.
bool grant(int folder, const struct stat& info)
{
    if ((info.st_mode & S_IRWXU) == S_IRWXU)
        return true;
    return ::fchmod(folder, (info.st_mode & 07777) | S_IRWXU) == 0;
}

bool addBelow(int folder, int depth);

// Only folders: files and links are left as they are (a file's other hard links share its mode).
bool addEntry(int folder, const char* name, int depth)
{
    struct stat listed {};
    if (::fstatat(folder, name, &listed, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT;
    if (!S_ISDIR(listed.st_mode))
        return true;
    const Descriptor entry = openFolder(folder, name, listed);
    struct stat opened {};
    if (!entry.isValid() || ::fstat(entry.get(), &opened) != 0)
        return false;
    if (opened.st_dev != listed.st_dev || opened.st_ino != listed.st_ino)
        return false;  // swapped between the two looks: leave whatever it is now alone
    const bool granted = grant(entry.get(), opened);
    return addBelow(entry.get(), depth + 1) && granted;
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
    if (!S_ISDIR(info.st_mode))
        return true;
    const bool granted = grant(root, info);
    return addBelow(root, 0) && granted;
}

Descriptor openFolder(int folder, const char* name, const struct stat& listed)
{
    Descriptor opened(::openat(folder, name, folderFlags));
    if (opened.isValid() || errno != EACCES || !S_ISDIR(listed.st_mode))
        return opened;
    if (const int error = Platform::changeModeAt(folder, name, listed, (listed.st_mode & 07777) | S_IRWXU)) {
        errno = error;
        return opened;
    }
    opened.reset(::openat(folder, name, folderFlags));
    return opened;
}

}  // namespace OwnerWrite
