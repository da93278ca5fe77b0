// One copy per user: a second launch asks the first to come to the front and ends.
#include "support/Wait.h"
#include "ui/SingleInstance.h"

#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

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
