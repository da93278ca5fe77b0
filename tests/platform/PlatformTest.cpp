#include "platform/Platform.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr qint64 microsecondsPerSecond = 1'000'000;

qint64 nowInMicroseconds()
{
    return QDateTime::currentMSecsSinceEpoch() * 1000;
}

// A child of this test process that sleeps until it is killed.
class Sleeper {
public:
    Sleeper() { m_process.start(QStringLiteral("/bin/sleep"), {QStringLiteral("300")}); }
    ~Sleeper() { end(); }

    bool started() { return m_process.waitForStarted(); }
    pid_t pid() const { return pid_t(m_process.processId()); }
    void end()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

std::optional<Platform::ProcessEntry> entryOf(pid_t pid)
{
    for (const Platform::ProcessEntry& entry : Platform::processTable()) {
        if (entry.pid == pid)
            return entry;
    }
    return std::nullopt;
}

}  // namespace

TEST(Platform, ProcessTableListsAChildWithItsParentAndGroupUntilItIsCollected)
{
    Sleeper sleeper;
    ASSERT_TRUE(sleeper.started());
    const pid_t pid = sleeper.pid();
    const std::optional<Platform::ProcessEntry> child = entryOf(pid);
    ASSERT_TRUE(child.has_value());
    EXPECT_EQ(child->parent, ::getpid());
    EXPECT_EQ(child->group, ::getpgrp());
    EXPECT_FALSE(child->ended);

    sleeper.end();
    EXPECT_EQ(entryOf(pid), std::nullopt);
}

TEST(Platform, CommandLinesShowAChildAsPsWouldWhileItRuns)
{
    const QString marker = QStringLiteral("dustlark-test-%1").arg(::getpid());
    QProcess child;
    child.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("read line"), QStringLiteral("sh"), marker,
                                            QStringLiteral("two words")});
    ASSERT_TRUE(child.waitForStarted());
    const std::optional<QStringList> lines = Platform::runningCommandLines();
    QProcess ps;
    ps.start(QStringLiteral("/bin/ps"), {QStringLiteral("-p"), QString::number(child.processId()), QStringLiteral("-ww"),
                                         QStringLiteral("-o"), QStringLiteral("command=")});
    ASSERT_TRUE(ps.waitForFinished());
    const QString shownByPs = QString::fromLocal8Bit(ps.readAllStandardOutput()).trimmed();
    child.closeWriteChannel();
    child.waitForFinished();
    if (!lines)
        GTEST_SKIP() << "this system's list is read by running ps";
    const QString expected = QStringLiteral("/bin/sh -c read line sh ") + marker + QStringLiteral(" two words");
    EXPECT_EQ(shownByPs, expected) << "ps itself";
    EXPECT_TRUE(lines->contains(expected)) << qPrintable(lines->filter(marker).join(QLatin1Char('\n')));
    EXPECT_FALSE(Platform::runningCommandLines()->contains(expected)) << "the child has ended";
}

TEST(Platform, ProcessStartTimeIsStableAndTellsProcessesApart)
{
    const qint64 before = nowInMicroseconds();
    Sleeper first;
    ASSERT_TRUE(first.started());
    const std::optional<qint64> firstStart = Platform::processStartTime(first.pid());
    ASSERT_TRUE(firstStart.has_value());
    EXPECT_EQ(Platform::processStartTime(first.pid()), firstStart);
    // Boot time is kept in whole seconds, so allow a little either way of the wall clock.
    EXPECT_GT(*firstStart, before - 5 * microsecondsPerSecond);
    EXPECT_LT(*firstStart, nowInMicroseconds() + 5 * microsecondsPerSecond);

    first.end();
    std::this_thread::sleep_for(50ms);  // start times tick in hundredths of a second here
    Sleeper second;
    ASSERT_TRUE(second.started());
    EXPECT_GT(Platform::processStartTime(second.pid()).value_or(0), *firstStart);

    EXPECT_EQ(Platform::processStartTime(0x7ffffff0), std::nullopt);
}

TEST(Platform, BirthTimeIsRecentForANewFileAndReadsLinksThemselves)
{
    TempTree tree;
    const QString file = tree.file(QStringLiteral("new.txt"), 10);
    const QString dangling = tree.symlink(QStringLiteral("dangling"), tree.path(QStringLiteral("gone")));

    const std::optional<QDateTime> born = Platform::birthTime(file);
    if (born) {  // absent where the file system keeps no creation time
        EXPECT_LT(std::abs(born->secsTo(QDateTime::currentDateTimeUtc())), 60);
        EXPECT_TRUE(Platform::birthTime(dangling).has_value());
    }
    EXPECT_EQ(Platform::birthTime(tree.path(QStringLiteral("gone"))), std::nullopt);
}

TEST(Platform, PrivatePipeEndsAreClosedOnExec)
{
    int ends[2];
    ASSERT_TRUE(Platform::openPrivatePipe(ends));
    EXPECT_TRUE(::fcntl(ends[0], F_GETFD) & FD_CLOEXEC);
    EXPECT_TRUE(::fcntl(ends[1], F_GETFD) & FD_CLOEXEC);
    ::close(ends[0]);
    ::close(ends[1]);
}
