// `dustlark-cli scan --notify`, as the scheduled scan runs it: on a private session bus with a
// notification service that records what it is asked to show.
#include "support/NotificationBus.h"
#include "support/TempTree.h"
#include "support/TreeSnapshot.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/statvfs.h>

namespace {

class NotifyCliTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.unavailable().isEmpty())
            GTEST_SKIP() << bus.unavailable().toStdString();
    }

    // The person's preferences and the app's data folder, private to this test.
    void setPreferences(const QByteArray& iniText) const
    {
        QFile file(tree.dir("config/Dustlark") + "/Dustlark.conf");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[General]\n" + iniText);
    }

    void scanWithNotify(const QString& home) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        environment.insert("XDG_CONFIG_HOME", tree.path("config"));
        environment.insert("XDG_DATA_HOME", tree.path("data"));
        QProcess cli;
        cli.setProcessEnvironment(environment);
        cli.start(QStringLiteral(DUSTLARK_CLI), {"scan", "--home", home, "--record", "--notify"});
        ASSERT_TRUE(cli.waitForFinished(120'000));
        ASSERT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().constData();
    }

    // The low-space warnings among the calls (the scan may also find the system's temporary files).
    QList<QJsonObject> lowSpaceCalls()
    {
        QList<QJsonObject> low;
        for (const QJsonObject& call : bus.calls()) {
            if (call["summary"].toString() == "Your disk is almost full")
                low.append(call);
        }
        return low;
    }

    NotificationBus bus;
    TempTree tree;
};

// Quiet just under a gigabyte; from a gigabyte the largest categories are told, once a day, and
// nothing in the home is selected, moved or removed.
TEST_F(NotifyCliTest, TellsWhatItFoundFromAGigabyteOnceADayAndChangesNothing)
{
    const QString home = tree.dir("home");
    tree.allocatedFile("home/.cache/pip/http/a", 990'000'000);  // with its folders, just under
    scanWithNotify(home);
    EXPECT_TRUE(bus.calls().isEmpty());

    tree.file("home/code/web/package.json");
    tree.allocatedFile("home/code/web/node_modules/left-pad/index.js", 20'000'000);
    const QMap<QString, QString> before = treeSnapshot(home);
    scanWithNotify(home);
    const QList<QJsonObject> calls = bus.calls();
    ASSERT_EQ(calls.size(), 1);
    const QString body = calls[0]["body"].toString();
    EXPECT_TRUE(body.startsWith("Dustlark found 1.01 GB you can review: Package Caches ")) << body.toStdString();
    EXPECT_TRUE(body.contains(", Project Builds ")) << body.toStdString();

    scanWithNotify(home);
    EXPECT_EQ(bus.calls().size(), 1);
    EXPECT_EQ(treeSnapshot(home), before);
}

TEST_F(NotifyCliTest, WarnsOfLowSpaceOnlyWhenThePersonAskedFor)
{
    // A tmpfs of its own with less than 50 GB free stands for a disk that runs low.
    QTemporaryDir shm(QStringLiteral("/dev/shm/dustlark-XXXXXX"));
    struct statvfs volume {};
    if (!shm.isValid() || ::statvfs("/dev/shm", &volume) != 0)
        GTEST_SKIP() << "no /dev/shm";
    if (qint64(volume.f_bavail) * qint64(volume.f_frsize) >= 50'000'000'000)
        GTEST_SKIP() << "/dev/shm has 50 GB or more free here";
    const QString home = shm.path();

    scanWithNotify(home);  // an empty home on a nearly full disk, and no warning chosen
    EXPECT_TRUE(lowSpaceCalls().isEmpty());

    setPreferences("freeSpaceWarning=50GB\n");
    scanWithNotify(home);
    const QList<QJsonObject> calls = lowSpaceCalls();
    ASSERT_EQ(calls.size(), 1);
    EXPECT_TRUE(calls[0]["body"].toString().startsWith("Only ")) << calls[0]["body"].toString().toStdString();
    scanWithNotify(home);
    EXPECT_EQ(lowSpaceCalls().size(), 1);
}

}  // namespace
