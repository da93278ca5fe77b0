#include "machinery/OrphanReaper.h"

#include "machinery/ToolStop.h"

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <system_error>
#include <thread>

namespace OrphanReaper {

namespace {

// Whether any child of ours, ended or not, is in the group; collects nothing.
bool hasChildrenIn(pid_t group)
{
    siginfo_t info {};
    return ::waitid(P_PGID, id_t(group), &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

// Waits for each member of the group to end and collects it, until none of ours is left. A
// member that is a registered tool means the group's id names a new tool now (possible only
// once the old group was empty): its own run collects it, and watches its group after that.
void collectUntilEmpty(pid_t group)
{
    for (;;) {
        siginfo_t info {};
        if (::waitid(P_PGID, id_t(group), &info, WEXITED | WNOWAIT) != 0) {
            if (errno == EINTR)
                continue;
            return;  // ECHILD: no child of ours is left in the group
        }
        if (!ToolStop::collectOrphan(info.si_pid))
            return;
    }
}

}  // namespace

void collectGroupAsItEnds(pid_t group)
{
    if (group <= 0 || !hasChildrenIn(group))
        return;
    try {
        std::thread(collectUntilEmpty, group).detach();
    } catch (const std::system_error&) {
        // No thread to be had: the group's zombies wait for a stop or for the app's end, as before.
    }
}

}  // namespace OrphanReaper
