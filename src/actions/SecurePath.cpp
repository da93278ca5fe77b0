#include "actions/SecurePath.h"

#include <QFile>
#include <QList>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace SecurePath {

namespace {

// Closes its descriptor when it goes out of scope.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    int get() const { return m_fd; }
    bool isValid() const { return m_fd >= 0; }
    void reset(int fd)
    {
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = fd;
    }

private:
    int m_fd;
};

bool sameObject(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

Verdict openFailure(int error)
{
    if (error == ELOOP)
        return Verdict::throughSymbolicLink;
    if (error == ENOTDIR)
        return Verdict::changed;
    return Verdict::folderUnreadable;
}

// Opens `name` inside the open folder `folder`, checking it against lstat of `prefix`.
Verdict descend(Descriptor& folder, const QByteArray& name, const QByteArray& prefix)
{
    struct stat byPath {};
    if (::lstat(prefix.constData(), &byPath) != 0)
        return Verdict::folderUnreadable;
    if (S_ISLNK(byPath.st_mode))
        return Verdict::throughSymbolicLink;
    const int next = ::openat(folder.get(), name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (next < 0)
        return openFailure(errno);
    folder.reset(next);
    struct stat byDescriptor {};
    if (::fstat(folder.get(), &byDescriptor) != 0)
        return Verdict::folderUnreadable;
    return sameObject(byPath, byDescriptor) ? Verdict::ok : Verdict::changed;
}

}  // namespace

Finding examine(const QString& path)
{
    const QByteArray encoded = QFile::encodeName(path);
    QList<QByteArray> names = encoded.split('/');
    names.removeAll(QByteArray());
    if (!encoded.startsWith('/') || names.isEmpty())
        return {};
    Descriptor folder(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isValid())
        return {};
    QByteArray prefix;
    for (qsizetype i = 0; i + 1 < names.size(); ++i) {
        prefix += '/' + names[i];
        const Verdict verdict = descend(folder, names[i], prefix);
        if (verdict != Verdict::ok)
            return {verdict};
    }
    struct stat last {};
    if (::fstatat(folder.get(), names.last().constData(), &last, AT_SYMLINK_NOFOLLOW) != 0)
        return {errno == ENOENT ? Verdict::missing : Verdict::folderUnreadable};
    return {Verdict::ok, qint32(last.st_dev), quint64(last.st_ino)};
}

}  // namespace SecurePath
