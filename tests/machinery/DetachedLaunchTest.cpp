#include "machinery/DetachedLaunch.h"
#include "machinery/ToolStop.h"
#include "platform/Platform.h"
#include "support/Wait.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// Processes of `group` that are still ours: running, or ended and not yet collected (zombies).
int oursIn(pid_t group)
{
    int count = 0;
    for (const Platform::ProcessEntry& entry : Platform::processTable())
        count += entry.group == group && (entry.parent == ::getpid() || !entry.ended) ? 1 : 0;
    return count;
}

}  // namespace

// A file manager started to show a folder ends some time later, often after handing the folder
// to a process it started itself; neither may stay behind as a defunct child of the app.
TEST(DetachedLaunch, TheProgramAndWhatItLeftRunningAreCollectedWhenTheyEnd)
{
    Platform::adoptOrphans();  // as the app is once it has run its first tool
    const pid_t program = DetachedLaunch::start(QStringLiteral("/bin/sh"),
                                                {QStringLiteral("-c"), QStringLiteral("sleep 0.3 </dev/null >/dev/null 2>&1 & exit 0")});
    ASSERT_GT(program, 0);
    EXPECT_TRUE(waitUntil([&] { return oursIn(program) == 0; })) << oursIn(program) << " left in its group";
    EXPECT_TRUE(ToolStop::collectOrphan(program)) << "no longer registered as a running tool";

    EXPECT_EQ(DetachedLaunch::start(QStringLiteral("/nonexistent/opener"), {}), -ENOENT);
}
