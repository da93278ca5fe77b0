#include "machinery/Background.h"
#include "support/Wait.h"

#include <QObject>
#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <gtest/gtest.h>
#include <memory>

TEST(Background, WorksOnThePoolAndAnswersOnTheGuiThreadOnlyWhileTheOwnerLives)
{
    QThread* const gui = QThread::currentThread();
    auto owner = std::make_unique<QObject>();
    QThread* workedOn = nullptr;
    QThread* answeredOn = nullptr;
    int answer = 0;
    Background::run(owner.get(), [&workedOn] { workedOn = QThread::currentThread(); return 42; }, [&](int result) {
        answeredOn = QThread::currentThread();
        answer = result;
    });
    ASSERT_TRUE(waitUntil([&] { return answer != 0; }));
    EXPECT_EQ(answer, 42);
    EXPECT_NE(workedOn, gui);
    EXPECT_EQ(answeredOn, gui);

    // An owner gone before the answer arrives gets none, and nothing is touched on its behalf.
    std::atomic<bool> release{false};
    bool answeredAfterwards = false;
    Background::run(owner.get(), [&release] { while (!release) QThread::msleep(1); return 1; },
                    [&answeredAfterwards](int) { answeredAfterwards = true; });
    owner.reset();
    release = true;
    QThreadPool::globalInstance()->waitForDone();
    waitUntil([] { return false; }, 100);  // lets the queued answer arrive, if one was sent
    EXPECT_FALSE(answeredAfterwards);
}
