// A click on what the scheduled scan told opens Dustlark on the Overview: the real report tool on
// a private session bus, the real app it launches, and the copy already running (this test's).
#include "support/NotificationBus.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "ui/SingleInstance.h"

#include <QProcess>
#include <QSignalSpy>

#include <gtest/gtest.h>

TEST(NotificationClick, AClickOnTheScheduledScansNoticeBringsTheRunningAppToTheOverview)
{
    NotificationBus bus(NotificationBus::Person::clicksWhenTold);
    if (!bus.unavailable().isEmpty())
        GTEST_SKIP() << bus.unavailable().toStdString();
    const TempTree tree;
    tree.allocatedFile("home/.cache/pip/http/a", 1'100'000'000);
    SingleInstance running;
    QSignalSpy overview(&running, &SingleInstance::overviewRequested);
    ASSERT_TRUE(running.claim());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.remove("INVOCATION_ID");  // not a systemd service: the app is started directly
    QProcess cli;
    cli.setProcessEnvironment(environment);
    cli.start(QStringLiteral(DUSTLARK_CLI), {"scan", "--home", tree.path("home"), "--notify"});
    ASSERT_TRUE(cli.waitForStarted());
    ASSERT_TRUE(waitUntil([&] { return bus.calls().size() == 1; }, 120'000)) << cli.readAllStandardError().constData();
    EXPECT_EQ(cli.state(), QProcess::Running) << "the report tool left before anyone could click";
    EXPECT_EQ(overview.count(), 0);

    bus.click(bus.calls()[0]["id"].toInt());
    EXPECT_TRUE(waitUntil([&] { return cli.state() == QProcess::NotRunning; }, 30'000));
    EXPECT_TRUE(waitUntil([&] { return overview.count() == 1; }, 30'000)) << "the launched app never asked for the Overview: " << cli.readAllStandardError().constData() << cli.readAllStandardOutput().constData();
    if (cli.state() != QProcess::NotRunning) {
        cli.kill();
        cli.waitForFinished();
    }
}
