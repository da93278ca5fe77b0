// The two measures the app takes when a benchmark asks: the wait for the window's first paint
// and the longest stall of the event loop.
#include "support/Wait.h"
#include "ui/FirstPaintStamp.h"
#include "ui/StallMeter.h"

#include <QDateTime>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <time.h>

namespace {

qint64 threadProcessorMs()
{
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return qint64(spent.tv_sec) * 1'000 + spent.tv_nsec / 1'000'000;
}

}  // namespace

TEST(ResponsivenessMeasuresTest, FirstPaintIsToldOnceAndCountsFromTheLaunch)
{
    QWidget window;
    QList<qint64> told;
    new FirstPaintStamp(&window, QDateTime::currentMSecsSinceEpoch() - 5'000, [&told](qint64 ms) { told.append(ms); });
    window.show();
    ASSERT_TRUE(waitUntil([&] { return !told.isEmpty(); }));
    window.repaint();
    waitUntil([] { return false; }, 50);
    ASSERT_EQ(told.size(), 1) << "later paints are not the window's first";
    EXPECT_GE(told.first(), 5'000);
}

TEST(ResponsivenessMeasuresTest, StallMeterKeepsTheLongestBlockButNotTheStartUpBeforeTheLoop)
{
    StallMeter meter(std::chrono::milliseconds(10));
    QThread::msleep(400);  // the program's start-up, before its loop ever turns
    ASSERT_TRUE(waitUntil([&] { return meter.watched() >= 50; }));
    QTimer::singleShot(0, [] { QThread::msleep(150); });
    ASSERT_TRUE(waitUntil([&] { return meter.watched() >= 300; }));
    EXPECT_GE(meter.longestStall(), 140);
    EXPECT_LT(meter.longestStall(), 400);
}

// Waiting is not work: a turn that sleeps leaves the busiest turn alone, one that computes sets it
// (counted in processor time, so a loaded machine neither adds to it nor takes from it).
TEST(ResponsivenessMeasuresTest, BusiestTurnCountsTheThreadsOwnWorkNotItsWaiting)
{
    StallMeter meter(std::chrono::milliseconds(10));
    ASSERT_TRUE(waitUntil([&] { return meter.watched() >= 30; }));
    QTimer::singleShot(0, [] { QThread::msleep(300); });
    ASSERT_TRUE(waitUntil([&] { return meter.watched() >= 400; }));
    EXPECT_LT(meter.busiestTurn(), 200) << "a sleeping turn counted as work";
    QTimer::singleShot(0, [] {
        const qint64 until = threadProcessorMs() + 300;
        volatile quint64 spin = 0;
        while (threadProcessorMs() < until)
            spin = spin + 1;
    });
    ASSERT_TRUE(waitUntil([&] { return meter.busiestTurn() >= 250; }, 20'000)) << "busiest " << meter.busiestTurn() << " ms";
}
