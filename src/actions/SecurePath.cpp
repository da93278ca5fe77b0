#include "actions/SecurePath.h"

#include "machinery/FolderListing.h"

#include <QFile>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace SecurePath {

namespace {

bool sameObject(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// A folder above the entry that is gone or no folder any more was renamed or replaced since the
// scan (perhaps only for a moment): the path changed, it didn't become unreadable.
Verdict lookFailure(int error)
{
    if (error == ELOOP)
        return Verdict::throughSymbolicLink;
    if (error == ENOENT || error == ENOTDIR)
        return Verdict::changed;
    return Verdict::folderUnreadable;
}

// Opens `name` inside the open folder `folder`, checking it against lstat of `prefix`.
Verdict descend(Descriptor& folder, const QByteArray& name, const QByteArray& prefix)
{
    struct stat byPath {};
    if (::lstat(prefix.constData(), &byPath) != 0)
        return lookFailure(errno);
    if (S_ISLNK(byPath.st_mode))
        return Verdict::throughSymbolicLink;
    const int next = ::openat(folder.get(), name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (next < 0)
        return lookFailure(errno);
    folder.reset(next);
    struct stat byDescriptor {};
    if (::fstat(folder.get(), &byDescriptor) != 0)
        return Verdict::folderUnreadable;
    return sameObject(byPath, byDescriptor) ? Verdict::ok : Verdict::changed;
}

bool roundTrips(const QByteArray& name)
{
    return QFile::encodeName(QFile::decodeName(name)) == name;
}

}  // namespace

OpenedParent openParent(const QString& path)
{
    const QByteArray encoded = QFile::encodeName(path);
    QList<QByteArray> names = encoded.split('/');
    names.removeAll(QByteArray());
    OpenedParent opened;
    if (!encoded.startsWith('/') || names.isEmpty())
        return opened;
    opened.folder.reset(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.folder.isValid())
        return opened;
    QByteArray prefix;
    for (qsizetype i = 0; i + 1 < names.size(); ++i) {
        prefix += '/' + names[i];
        opened.verdict = descend(opened.folder, names[i], prefix);
        if (opened.verdict != Verdict::ok)
            return opened;
    }
    opened.verdict = Verdict::ok;
    opened.name = names.last();
    return opened;
}

Finding examine(const QString& path)
{
    const OpenedParent parent = openParent(path);
    if (parent.verdict != Verdict::ok)
        return {parent.verdict};
    struct stat last {};
    if (::fstatat(parent.folder.get(), parent.name.constData(), &last, AT_SYMLINK_NOFOLLOW) != 0)
        return {errno == ENOENT ? Verdict::missing : Verdict::folderUnreadable};
    return {Verdict::ok, qint32(last.st_dev), quint64(last.st_ino)};
}

bool isAmbiguousName(int folder, const QByteArray& name)
{
    static const QByteArray replacement = QString(QChar::ReplacementCharacter).toUtf8();
    if (!name.contains(replacement))
        return false;
    const std::optional<QByteArrayList> names = FolderListing::names(folder);
    if (!names)
        return true;  // can't tell, so don't guess which object the name means
    return std::any_of(names->begin(), names->end(), [&](const QByteArray& entry) {
        return !roundTrips(entry) && QFile::encodeName(QFile::decodeName(entry)) == name;
    });
}

}  // namespace SecurePath
