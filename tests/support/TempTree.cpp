#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

TempTree::TempTree() : m_root(QFileInfo(m_dir.path()).canonicalFilePath()) {}

TempTree::TempTree(const QString& parentFolder)
    : m_dir(parentFolder + QStringLiteral("/dustlark-XXXXXX")), m_root(QFileInfo(m_dir.path()).canonicalFilePath()) {}

QString TempTree::path(const QString& relative) const
{
    return relative.isEmpty() ? m_root : m_root + QLatin1Char('/') + relative;
}

QString TempTree::dir(const QString& relative) const
{
    const QString absolute = path(relative);
    QDir().mkpath(absolute);
    return absolute;
}

QString TempTree::file(const QString& relative, qint64 size, char fill) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile out(absolute);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot create %s", qPrintable(absolute));
    const QByteArray chunk(static_cast<int>(std::min<qint64>(size, 1 << 20)), fill);
    for (qint64 left = size; left > 0; left -= chunk.size())
        out.write(chunk.constData(), std::min<qint64>(left, chunk.size()));
    return absolute;
}

QString TempTree::file(const QString& relative, const QByteArray& content) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile out(absolute);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot create %s", qPrintable(absolute));
    out.write(content);
    return absolute;
}

QString TempTree::sparseFile(const QString& relative, qint64 size) const
{
    const QString absolute = file(relative, 0);
    if (::truncate(QFile::encodeName(absolute).constData(), size) != 0)
        qFatal("cannot size %s", qPrintable(absolute));
    return absolute;
}

QString TempTree::allocatedFile(const QString& relative, qint64 size) const
{
    const QString absolute = file(relative, 0);
    const int fd = ::open(QFile::encodeName(absolute).constData(), O_WRONLY);
    const int failed = fd < 0 ? errno : ::posix_fallocate(fd, 0, size);
    if (fd >= 0)
        ::close(fd);
    if (failed != 0)
        qFatal("cannot allocate %s: %s", qPrintable(absolute), std::strerror(failed));
    return absolute;
}

QString TempTree::symlink(const QString& relative, const QString& target) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(absolute).constData()) != 0)
        qFatal("cannot link %s", qPrintable(absolute));
    return absolute;
}

QString TempTree::socketFile(const QString& relative) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    const QByteArray encoded = QFile::encodeName(absolute);
    struct sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (size_t(encoded.size()) >= sizeof address.sun_path)
        qFatal("socket path too long: %s", encoded.constData());
    std::memcpy(address.sun_path, encoded.constData(), size_t(encoded.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound = fd >= 0 && ::bind(fd, reinterpret_cast<const struct sockaddr*>(&address), sizeof address) == 0;
    if (fd >= 0)
        ::close(fd);
    if (!bound)
        qFatal("cannot make the socket %s: %s", encoded.constData(), std::strerror(errno));
    return absolute;
}

QString TempTree::hardlink(const QString& relative, const QString& existingRelative) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    if (::link(QFile::encodeName(path(existingRelative)).constData(), QFile::encodeName(absolute).constData()) != 0)
        qFatal("cannot hard-link %s", qPrintable(absolute));
    return absolute;
}

void TempTree::setTimes(const QString& relative, qint64 secondsSinceEpoch) const
{
    const struct timespec times[2] = {{secondsSinceEpoch, 0}, {secondsSinceEpoch, 0}};
    ::utimensat(AT_FDCWD, QFile::encodeName(path(relative)).constData(), times, AT_SYMLINK_NOFOLLOW);
}

namespace {

constexpr uid_t nobody = 65534;
constexpr int childCannotRun = 77;

[[noreturn]] void runAsNobody(const std::function<QByteArray()>& work, const QString& root, int output)
{
    const bool dropped = ::setgroups(0, nullptr) == 0 && ::setgid(nobody) == 0 && ::setuid(nobody) == 0;
    if (!dropped || ::access(QFile::encodeName(root).constData(), R_OK | X_OK) != 0)
        ::_exit(childCannotRun);
#ifdef __linux__
    // Changing the user made the process undumpable, which hides /proc/self/fd from it; an
    // ordinary user's process can use it.
    ::prctl(PR_SET_DUMPABLE, 1);
#endif
    const QByteArray result = work();
    for (qsizetype written = 0; written < result.size();) {
        const ssize_t count = ::write(output, result.constData() + written, result.size() - written);
        if (count <= 0)
            ::_exit(childCannotRun);
        written += count;
    }
    ::_exit(0);
}

QByteArray readAll(int input)
{
    QByteArray all;
    char buffer[4096];
    for (ssize_t count; (count = ::read(input, buffer, sizeof buffer)) != 0;) {
        if (count > 0)
            all.append(buffer, count);
        else if (errno != EINTR)
            break;
    }
    return all;
}

}  // namespace

std::optional<QByteArray> TempTree::runUnprivileged(const std::function<QByteArray()>& work) const
{
    if (::geteuid() != 0)
        return work();
    ::chmod(QFile::encodeName(m_root).constData(), 0755);
    int pipeEnds[2];
    if (::pipe(pipeEnds) != 0)
        return std::nullopt;
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(pipeEnds[0]);
        runAsNobody(work, m_root, pipeEnds[1]);
    }
    ::close(pipeEnds[1]);
    const QByteArray result = child > 0 ? readAll(pipeEnds[0]) : QByteArray();
    ::close(pipeEnds[0]);
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child)
        return std::nullopt;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return std::nullopt;
    return result;
}
