#include "machinery/ProcessRunner.h"

#include "machinery/OrphanReaper.h"
#include "machinery/ToolStop.h"
#include "platform/Platform.h"
#include "vocabulary/SystemError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace ProcessRunner {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr qsizetype outputCap = 64 * 1024 * 1024;
constexpr milliseconds pollInterval{20};
constexpr milliseconds drainLimit = 100 * pollInterval;
constexpr milliseconds longestTimeout = std::chrono::hours(24 * 365);  // keeps the deadline from overflowing
constexpr int messageLimit = 300;

// One captured output: the reading end of its pipe and what came through it.
struct Stream {
    int fd = -1;
    QByteArray data;

    bool isOpen() const { return fd >= 0; }
    void close();
    void readAvailable();
};

void Stream::close()
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

// Appends `data` to `buffer` but never beyond `cap` bytes; the rest is dropped.
void appendCapped(QByteArray& buffer, const char* data, qsizetype size, qsizetype cap)
{
    const qsizetype room = std::max<qsizetype>(0, cap - buffer.size());
    buffer.append(data, std::min(size, room));
}

void Stream::readAvailable()
{
    char chunk[32 * 1024];
    const ssize_t count = ::read(fd, chunk, sizeof chunk);
    if (count > 0) {
        appendCapped(data, chunk, count, outputCap);
        return;
    }
    if (count < 0 && errno == EINTR)
        return;
    close();  // end of file, or an error that ends the stream just the same
}

// The tool's two outputs, read as data arrives. Owned by one run on one thread.
class Capture {
public:
    Capture() = default;
    ~Capture()
    {
        out.close();
        err.close();
    }
    Q_DISABLE_COPY_MOVE(Capture)

    bool allClosed() const { return !out.isOpen() && !err.isOpen(); }

    // Waits at most `wait` for data or end of file on the open streams and reads what came.
    void pump(milliseconds wait)
    {
        pollfd fds[2];
        Stream* streams[2];
        nfds_t count = 0;
        for (Stream* stream : {&out, &err}) {
            if (!stream->isOpen())
                continue;
            fds[count] = pollfd{stream->fd, POLLIN, 0};
            streams[count++] = stream;
        }
        if (::poll(fds, count, int(wait.count())) <= 0)
            return;
        for (nfds_t i = 0; i < count; ++i) {
            if (fds[i].revents != 0)
                streams[i]->readAvailable();
        }
    }

    Stream out;
    Stream err;
};

// NUL-terminated strings and the pointer array that posix_spawn takes, kept alive together.
class CStringArray {
public:
    explicit CStringArray(QList<QByteArray> strings) : m_strings(std::move(strings))
    {
        for (QByteArray& string : m_strings)
            m_pointers.push_back(string.data());
        m_pointers.push_back(nullptr);
    }
    Q_DISABLE_COPY_MOVE(CStringArray)

    char* const* data() const { return m_pointers.data(); }

private:
    QList<QByteArray> m_strings;
    std::vector<char*> m_pointers;
};

// posix_spawn's file actions and attributes for one tool: null input, the outputs on the given
// pipe ends, every signal at its default and none blocked, whatever the calling thread has, in a
// process group of its own so that a stop reaches everything it starts.
class SpawnSetup {
public:
    SpawnSetup(int outputEnd, int errorEnd)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, outputEnd, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, errorEnd, STDERR_FILENO);
        sigset_t noSignals;
        sigemptyset(&noSignals);
        sigset_t allSignals;
        sigfillset(&allSignals);
        sigdelset(&allSignals, SIGKILL);
        sigdelset(&allSignals, SIGSTOP);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setsigmask(&attributes, &noSignals);
        posix_spawnattr_setsigdefault(&attributes, &allSignals);
        posix_spawnattr_setpgroup(&attributes, 0);
        posix_spawnattr_setflags(&attributes, short(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP
                                                    | Platform::extraSpawnFlags()));
    }
    ~SpawnSetup()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&actions);
    }
    Q_DISABLE_COPY_MOVE(SpawnSetup)

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

void closeBoth(const int ends[2])
{
    ::close(ends[0]);
    ::close(ends[1]);
}

// Starts the tool with its outputs on new pipes whose reading ends go to `capture`. Returns the
// process id, or the errno that prevented the start as a negative number.
pid_t launch(const QByteArray& path, const CStringArray& arguments, const CStringArray& environment,
             Capture& capture)
{
    int outputPipe[2];
    int errorPipe[2];
    if (!Platform::openPrivatePipe(outputPipe))
        return -errno;
    if (!Platform::openPrivatePipe(errorPipe)) {
        const int error = errno;
        closeBoth(outputPipe);
        return -error;
    }
    capture.out.fd = outputPipe[0];
    capture.err.fd = errorPipe[0];
    const SpawnSetup setup(outputPipe[1], errorPipe[1]);
    const pid_t tool = ToolStop::launchRegistered([&]() -> pid_t {
        pid_t pid = -1;
        const int error = posix_spawn(&pid, path.constData(), &setup.actions, &setup.attributes, arguments.data(),
                                      environment.data());
        return error == 0 ? pid : -error;
    });
    // The tool holds its own copies now; ours would keep the pipes from ever reaching end of file.
    ::close(outputPipe[1]);
    ::close(errorPipe[1]);
    return tool;
}

QList<QByteArray> argumentVector(const QString& executable, const QStringList& arguments)
{
    QList<QByteArray> vector{QFile::encodeName(executable)};
    for (const QString& argument : arguments)
        vector.append(QFile::encodeName(argument));
    return vector;
}

QList<QByteArray> environmentVector(const Environment& environment)
{
    QList<QByteArray> vector;
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        vector.append(QFile::encodeName(it.key()) + '=' + QFile::encodeName(it.value()));
    return vector;
}

qint32 statusOf(int waitStatus)
{
    if (WIFEXITED(waitStatus))
        return WEXITSTATUS(waitStatus);
    if (WIFSIGNALED(waitStatus))
        return WTERMSIG(waitStatus);
    return -1;
}

// The tool's status once it has ended and been collected; absent while it still runs.
std::optional<qint32> reap(pid_t pid)
{
    int waitStatus = 0;
    const pid_t result = ::waitpid(pid, &waitStatus, WNOHANG);
    if (result == pid)
        return statusOf(waitStatus);
    if (result == 0 || (result < 0 && errno == EINTR))
        return std::nullopt;
    return -1;  // already collected elsewhere (SIGCHLD ignored): it has ended all the same
}

// When a running tool must be stopped: its deadline has passed, or the caller cancelled.
struct StopCondition {
    Clock::time_point deadline;
    const CancellationToken* cancellation = nullptr;

    bool cancelled() const { return cancellation != nullptr && cancellation->isCancelled(); }
    bool expired() const { return Clock::now() >= deadline; }
};

// Reads the tool's outputs until it has ended and returns its status. Once the condition says
// so, the tool's whole tree is stopped, and the call returns only when none of it is left.
qint32 waitForExit(pid_t tool, Capture& capture, const StopCondition& condition, bool& timedOut)
{
    std::optional<ToolStop> stop;
    std::optional<qint32> status;
    milliseconds idle{1};
    for (;;) {
        if (!status && (status = reap(tool)))
            ToolStop::forgetTool(tool);
        if (!stop && !status && (condition.cancelled() || condition.expired())) {
            timedOut = !condition.cancelled();
            stop.emplace(tool);
        }
        if (stop ? stop->round(status.has_value()) : status.has_value())
            return *status;
        if (!capture.allClosed()) {
            capture.pump(pollInterval);
            continue;
        }
        // Both outputs closed: the tool is about to end, so look again soon, then less often.
        std::this_thread::sleep_for(idle);
        idle = std::min(idle * 2, pollInterval);
    }
}

// After the tool ended: reads what is still in the pipes, but gives up after about 2 s so a
// grandchild that keeps them open cannot hold the caller.
void drain(Capture& capture)
{
    const Clock::time_point limit = Clock::now() + drainLimit;
    while (!capture.allClosed()) {
        const auto left = std::chrono::duration_cast<milliseconds>(limit - Clock::now());
        if (left.count() <= 0)
            return;
        capture.pump(std::min(left, pollInterval));
    }
}

bool startsWithToolChangingPrefix(const QString& name)
{
    static const QStringList prefixes{QStringLiteral("DYLD_"), QStringLiteral("LD_"), QStringLiteral("GIT_"),
                                      QStringLiteral("BUILDX_")};
    return std::any_of(prefixes.cbegin(), prefixes.cend(),
                       [&](const QString& prefix) { return name.startsWith(prefix); });
}

Environment systemEnvironment()
{
    Environment environment;
    const QProcessEnvironment system = QProcessEnvironment::systemEnvironment();
    for (const QString& name : system.keys())
        environment.insert(name, system.value(name));
    return environment;
}

// The first `limit` characters of `text`, never splitting a surrogate pair.
QString firstCharacters(const QString& text, int limit)
{
    qsizetype end = 0;
    for (int count = 0; count < limit && end < text.size(); ++count) {
        const bool pair = text.at(end).isHighSurrogate() && end + 1 < text.size() && text.at(end + 1).isLowSurrogate();
        end += pair ? 2 : 1;
    }
    return text.left(end);
}

}  // namespace

QString Output::errorMessage() const
{
    if (timedOut)
        //: Error when a command-line tool (docker, xcrun) times out
        return QCoreApplication::translate("ProcessRunner", "The tool didn't answer in time.");
    QString text = standardError.trimmed();
    if (text.isEmpty())
        text = standardOutput.trimmed();
    if (!text.isEmpty())
        return firstCharacters(text, messageLimit);
    //: Error of a command-line tool that gave no message
    return QCoreApplication::translate("ProcessRunner", "Exit code %1").arg(status);
}

Result run(const QString& executable, const QStringList& arguments, milliseconds timeout,
           const Environment& extraEnvironment, const CancellationToken* cancellation)
{
    Environment environment = baseEnvironment();
    environment.insert(extraEnvironment);  // a name in both takes the caller's value
    const CStringArray argumentStrings(argumentVector(executable, arguments));
    const CStringArray environmentStrings(environmentVector(environment));

    static const bool adopting = Platform::adoptOrphans();  // once per process, before the first launch
    Q_UNUSED(adopting)
    Capture capture;
    const pid_t tool = launch(QFile::encodeName(executable), argumentStrings, environmentStrings, capture);
    if (tool < 0)
        return {std::nullopt, SystemError::describe(-tool)};

    Output output;
    const StopCondition condition{Clock::now() + std::clamp(timeout, milliseconds(0), longestTimeout), cancellation};
    output.status = waitForExit(tool, capture, condition, output.timedOut);
    OrphanReaper::collectGroupAsItEnds(tool);
    drain(capture);
    output.standardOutput = QString::fromUtf8(capture.out.data);
    output.standardError = QString::fromUtf8(capture.err.data);
    return {output, {}};
}

std::optional<QString> firstExecutable(const QStringList& candidates)
{
    for (const QString& candidate : candidates) {
        const QByteArray path = QFile::encodeName(candidate);
        struct stat info {};
        // stat, not lstat: Homebrew and Docker install their tools as symbolic links.
        if (::stat(path.constData(), &info) == 0 && S_ISREG(info.st_mode) && ::access(path.constData(), X_OK) == 0)
            return candidate;
    }
    return std::nullopt;
}

const Environment& baseEnvironment()
{
    static const Environment base = cleanedEnvironment(systemEnvironment(), QDir::homePath());
    return base;
}

Environment cleanedEnvironment(const Environment& inherited, const QString& home)
{
    Environment cleaned;
    for (auto it = inherited.cbegin(); it != inherited.cend(); ++it) {
        if (!startsWithToolChangingPrefix(it.key()))
            cleaned.insert(it.key(), it.value());
    }
    cleaned.insert(QStringLiteral("PATH"),
                   QStringLiteral("/usr/bin:/bin:/usr/sbin:/sbin:/usr/local/bin:/opt/homebrew/bin:") + home
                       + QStringLiteral("/.docker/bin"));
    return cleaned;
}

}  // namespace ProcessRunner
