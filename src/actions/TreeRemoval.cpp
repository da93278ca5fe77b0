#include "actions/TreeRemoval.h"

#include "machinery/Descriptor.h"
#include "actions/OwnerWrite.h"
#include "machinery/TreeWalker.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace TreeRemoval {

namespace {

// Files and links as they are met, folders once emptied, each relative to its open folder. The
// root is left to the caller, which removes it through the folder that holds it.
class Removing : public TreeVisitor {
public:
    Verdict visitItem(const TreeEntry& entry) override
    {
        unlink(entry, 0);
        return Verdict::Enter;
    }
    void leaveFolder(const TreeEntry& entry) override
    {
        if (entry.depth() > 0)
            unlink(entry, AT_REMOVEDIR);
    }

private:
    static void unlink(const TreeEntry& entry, int flags)
    {
        if (entry.folderDescriptor() >= 0)
            ::unlinkat(entry.folderDescriptor(), std::string(entry.name()).c_str(), flags);
    }
};

std::optional<struct stat> statusAt(int parent, const char* name)
{
    struct stat info {};
    if (::fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return info;
}

bool isSame(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Everything below the open folder `root`; the walk reaches it as "." of itself, so not even
// the root's name is looked up again.
void emptyFolder(int root, const struct stat& status)
{
    TreeFolder folder;
    folder.parentDescriptor = root;
    folder.name = ".";
    folder.status = status;
    Removing removing;
    TreeWalker({}).walkBelow(folder, removing);
}

// Removes the emptied folder `name` only while the name is still that folder: one swapped in
// since is not ours to remove.
bool removeEmptied(int parent, const char* name, const struct stat& opened)
{
    const auto now = statusAt(parent, name);
    return now && isSame(*now, opened) && ::unlinkat(parent, name, AT_REMOVEDIR) == 0;
}

// Empties the folder through its own descriptor and removes it. When something stayed (folders
// without write or read permission, kept so on purpose) the owner is given permissions through
// the tree and it is emptied once more.
bool removeFolder(int parent, const char* name, const struct stat& listed)
{
    const Descriptor root = OwnerWrite::openFolder(parent, name, listed);
    if (!root.isValid())  // a link swapped in is removed itself, never followed
        return errno == ELOOP || errno == ENOTDIR ? ::unlinkat(parent, name, 0) == 0 : false;
    struct stat opened {};
    if (::fstat(root.get(), &opened) != 0 || !isSame(opened, listed))
        return false;  // swapped between the two looks: leave whatever it is now alone
    emptyFolder(root.get(), opened);
    if (removeEmptied(parent, name, opened))
        return true;
    OwnerWrite::addThroughTree(root.get());
    emptyFolder(root.get(), opened);
    return removeEmptied(parent, name, opened);
}

}  // namespace

bool removeAt(int parent, const QByteArray& name, std::optional<FileKey> expected)
{
    const auto listed = statusAt(parent, name.constData());
    if (!listed)
        return errno == ENOENT;
    if (expected && FileKey::of(*listed) != *expected)
        return false;
    struct stat folder {};
    if (::fstat(parent, &folder) != 0 || folder.st_dev != listed->st_dev)
        return false;  // a disk mounted here is not part of the tree
    const bool removed = S_ISDIR(listed->st_mode) ? removeFolder(parent, name.constData(), *listed)
                                                  : ::unlinkat(parent, name.constData(), 0) == 0;
    return removed || (!statusAt(parent, name.constData()) && errno == ENOENT);
}

bool removeTree(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    const qsizetype slash = clean.lastIndexOf(QLatin1Char('/'));
    const QString folder = slash == 0 ? QStringLiteral("/") : slash > 0 ? clean.left(slash) : QStringLiteral(".");
    const QByteArray name = QFile::encodeName(clean.mid(slash + 1));
    if (name.isEmpty() || name == "." || name == "..")
        return false;
    const Descriptor parent(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!parent.isValid())
        return errno == ENOENT;
    return removeAt(parent.get(), name);
}

}  // namespace TreeRemoval
