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
