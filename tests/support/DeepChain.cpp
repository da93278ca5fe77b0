#include "support/DeepChain.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/inotify.h>
#endif

namespace {

void writeFile(int folder, const char* name, qint64 size)
{
    const int file = ::openat(folder, name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0)
        qFatal("cannot create %s", name);
    const QByteArray bytes(static_cast<qsizetype>(size), 'x');
    if (::write(file, bytes.constData(), size_t(bytes.size())) != bytes.size())
        qFatal("cannot write %s", name);
    ::close(file);
}

}  // namespace

DeepChain::DeepChain(const QString& top, const QByteArray& component, int depth,
                     const std::function<qint64(int)>& fileBytes)
    : m_first(top + QLatin1Char('/') + QFile::decodeName(component))
{
#ifdef __linux__
    m_inotify = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
#endif
    int folder = ::open(QFile::encodeName(top).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < depth && folder >= 0; ++level) {
        writeFile(folder, "file", fileBytes(level));
        if (::mkdirat(folder, component.constData(), 0755) != 0)
            qFatal("cannot create level %d", level);
        const int next = ::openat(folder, component.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = next;
#ifdef __linux__
        if (folder >= 0 && m_inotify >= 0)  // by descriptor: the paths grow past what path calls take
            ::inotify_add_watch(m_inotify, ("/proc/self/fd/" + QByteArray::number(folder)).constData(), IN_OPEN);
#endif
    }
    if (folder < 0)
        qFatal("cannot open a level of the chain");
    writeFile(folder, "bottom", 0);
    ::close(folder);
}

DeepChain::~DeepChain()
{
    if (m_inotify >= 0)
        ::close(m_inotify);
    QProcess::execute(QStringLiteral("rm"), {QStringLiteral("-rf"), m_first});
}

std::optional<qint64> DeepChain::openings() const
{
    if (m_inotify < 0)
        return std::nullopt;
    qint64 openings = 0;
#ifdef __linux__
    alignas(inotify_event) char buffer[64 * 1024];
    for (ssize_t got; (got = ::read(m_inotify, buffer, sizeof buffer)) > 0;) {
        for (ssize_t at = 0; at < got; at += ssize_t(sizeof(inotify_event)) + reinterpret_cast<const inotify_event*>(buffer + at)->len) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
            if (event->mask & IN_Q_OVERFLOW)
                openings = std::numeric_limits<qint64>::max() / 2;
            else if (event->len == 0)  // the folder itself, not a name inside it
                ++openings;
        }
    }
#endif
    return openings;
}
