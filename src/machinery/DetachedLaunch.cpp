#include "machinery/DetachedLaunch.h"

#include "machinery/OrphanReaper.h"
#include "machinery/ToolStop.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <vector>

extern char** environ;

namespace DetachedLaunch {

namespace {

pid_t spawnInOwnGroup(const QByteArray& path, const std::vector<QByteArray>& arguments)
{
    std::vector<char*> argv;
    for (const QByteArray& argument : arguments)
        argv.push_back(const_cast<char*>(argument.constData()));
    argv.push_back(nullptr);
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_t actions;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    pid_t pid = -1;
    const int error = posix_spawn(&pid, path.constData(), &actions, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    return error == 0 ? pid : -error;
}

void collectWhenEnded(pid_t program)
{
    while (::waitpid(program, nullptr, 0) < 0 && errno == EINTR) {
    }
    ToolStop::forgetTool(program);
    OrphanReaper::collectGroupAsItEnds(program);
}

}  // namespace

pid_t start(const QString& executable, const QStringList& arguments)
{
    std::vector<QByteArray> argv{QFile::encodeName(executable)};
    for (const QString& argument : arguments)
        argv.push_back(argument.toLocal8Bit());
    const QByteArray path = argv.front();
    const pid_t program = ToolStop::launchRegistered([&] { return spawnInOwnGroup(path, argv); });
    if (program <= 0)
        return program;
    try {
        std::thread(collectWhenEnded, program).detach();
    } catch (const std::system_error&) {
        // No thread to be had: it stays registered and is collected when the app ends.
    }
    return program;
}

}  // namespace DetachedLaunch
