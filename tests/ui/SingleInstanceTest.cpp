// One copy per user: a second launch, in this process or as the real app, asks the first to
// come to the front and ends.
#include "support/Wait.h"
#include "ui/SingleInstance.h"

#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(SingleInstance, ASecondClaimRaisesTheFirstAndALaterOneRunsOnceItHasGone)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    auto first = std::make_unique<SingleInstance>(folder.path());
    QSignalSpy raised(first.get(), &SingleInstance::activationRequested);
    ASSERT_TRUE(first->claim());

    SingleInstance second(folder.path());
    EXPECT_FALSE(second.claim(2s));
    EXPECT_TRUE(waitUntil([&] { return raised.count() == 1; }));

    first.reset();
    SingleInstance third(folder.path());
    EXPECT_TRUE(third.claim(2s)) << "the lock of a copy that ended must not hold the next launch";
    SingleInstance fourth(folder.path());
    EXPECT_FALSE(fourth.claim(2s));
}

namespace {

QProcess* startApp(QObject* parent)
{
    auto* app = new QProcess(parent);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    app->setProcessEnvironment(environment);
    app->start(QStringLiteral(DUSTLARK_APP), {});
    return app;
}

}  // namespace

// The real app: a first copy holds the user's instance until it is killed (its lock is then
// taken over); a copy started while another runs asks for that one and exits without a window.
TEST(SingleInstance, TheRealAppRunsOnceAndASecondLaunchRaisesTheFirst)
{
    QObject owner;
    QProcess* first = startApp(&owner);
    ASSERT_TRUE(first->waitForStarted());
    const QString socket = SingleInstance::defaultFolder() + QStringLiteral("/dustlark.socket");
    ASSERT_TRUE(waitUntil([&] { return QFileInfo::exists(socket); }, 30'000)) << "the app never listened";
    SingleInstance probe;
    EXPECT_FALSE(probe.claim(5s)) << "a second copy could run beside the app";
    first->kill();
    first->waitForFinished();

    SingleInstance running;
    QSignalSpy raised(&running, &SingleInstance::activationRequested);
    ASSERT_TRUE(running.claim()) << "the lock of a killed copy holds every later launch";
    QProcess* second = startApp(&owner);
    ASSERT_TRUE(second->waitForStarted());
    const bool ended = waitUntil([&] { return second->state() == QProcess::NotRunning; }, 30'000);
    if (!ended) {
        second->kill();
        second->waitForFinished();
    }
    ASSERT_TRUE(ended) << "the second copy kept running";
    EXPECT_EQ(second->exitCode(), 0);
    EXPECT_EQ(raised.count(), 1);
}
