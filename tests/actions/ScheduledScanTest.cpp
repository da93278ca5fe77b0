// "Scan for me": the systemd user timer and service, checked by systemd's own verifier, and the
// LaunchAgent, read back as a property list with the launchctl command lines checked as data.
#include "actions/ScheduledScan.h"
#include "scan/PropertyList.h"
#include "support/TempTree.h"

#include <QFile>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace {

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ScheduledScan::Place linuxPlace(const TempTree& tree, const QString& cli = QStringLiteral(DUSTLARK_CLI))
{
    ScheduledScan::Place place;
    place.desktop = Platform::Desktop::freedesktop;
    place.home = tree.dir("home");
    place.configHome = tree.path("config");
    place.cli = cli;
    place.uid = 1000;
    return place;
}

ScheduledScan::Place macPlace(const TempTree& tree)
{
    ScheduledScan::Place place;
    place.desktop = Platform::Desktop::finder;
    place.home = tree.dir("Users/ada");
    place.cli = QStringLiteral("/Applications/Dustlark & Co.app/Contents/MacOS/dustlark-cli");
    place.uid = 501;
    return place;
}

// systemd's own check of the units in `folder`; empty when it accepts them.
QString systemdVerdict(const QString& folder)
{
    QProcess verify;
    verify.start(QStandardPaths::findExecutable(QStringLiteral("systemd-analyze")),
                 {QStringLiteral("--user"), QStringLiteral("verify"), folder + "/dustlark-scan.timer", folder + "/dustlark-scan.service"});
    if (!verify.waitForFinished(60'000))
        return QStringLiteral("systemd-analyze did not finish");
    const QString output = QString::fromUtf8(verify.readAllStandardError() + verify.readAllStandardOutput()).trimmed();
    return verify.exitCode() == 0 && output.isEmpty() ? QString() : output + QStringLiteral(" (exit %1)").arg(verify.exitCode());
}

// What the real systemctl answers here decides what turning the schedule on says.
bool userManagerRuns()
{
    const ProcessRunner::Result reload = ScheduledScan::runTool({"/usr/bin/systemctl", "--user", "daemon-reload"});
    return reload.launched() && reload.output->status == 0;
}

TEST(ScheduledScanTest, LinuxTimerIsWrittenVerifiedEnabledAndRemoved)
{
    const TempTree tree;
    const ScheduledScan::Place place = linuxPlace(tree);
    const QString units = tree.path("config/systemd/user");

    const auto said = ScheduledScan::apply(ScanSchedule::weekly, place);
    if (userManagerRuns())
        EXPECT_FALSE(said) << said->toStdString();
    else
        EXPECT_EQ(said, "The scan is scheduled, but no systemd user manager is running now, so it starts with your next login that runs one.");
    const QString service = QString::fromUtf8(contentsOf(tree.path("config/systemd/user/dustlark-scan.service")));
    EXPECT_TRUE(service.contains(QStringLiteral("\nExecStart=\"%1\" \"scan\" \"--record\" \"--notify\"\n").arg(DUSTLARK_CLI))) << service.toStdString();
    EXPECT_TRUE(contentsOf(tree.path("config/systemd/user/dustlark-scan.timer")).contains("\nOnCalendar=weekly\n"));
    // Enabled as `systemctl --user enable` would: wanted by timers.target.
    EXPECT_EQ(QFileInfo(units + "/timers.target.wants/dustlark-scan.timer").symLinkTarget(), units + "/dustlark-scan.timer");
    if (QStandardPaths::findExecutable(QStringLiteral("systemd-analyze")).isEmpty())
        GTEST_SKIP() << "no systemd-analyze (package systemd) to verify the units";
    EXPECT_EQ(systemdVerdict(units).toStdString(), "");

    ScheduledScan::apply(ScanSchedule::monthly, place);
    EXPECT_TRUE(contentsOf(tree.path("config/systemd/user/dustlark-scan.timer")).contains("\nOnCalendar=monthly\n"));
    EXPECT_EQ(systemdVerdict(units).toStdString(), "");

    EXPECT_FALSE(ScheduledScan::apply(ScanSchedule::never, place));
    EXPECT_EQ(QDir(units).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System), QStringList{"timers.target.wants"});
    EXPECT_TRUE(QDir(units + "/timers.target.wants").isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System));
}

TEST(ScheduledScanTest, ToolPathWithSpacesAndSystemdSignsStaysOneWord)
{
    if (QStandardPaths::findExecutable(QStringLiteral("systemd-analyze")).isEmpty())
        GTEST_SKIP() << "no systemd-analyze (package systemd) to verify the units";
    const TempTree tree;
    const QString cli = tree.dir("opt/Dust lark 100%$HOME") + "/dustlark-cli";
    ASSERT_TRUE(QFile::copy(QStringLiteral(DUSTLARK_CLI), cli));
    const ScheduledScan::Place place = linuxPlace(tree, cli);
    for (const auto& file : ScheduledScan::files(ScanSchedule::weekly, place)) {
        QFile out(file.path);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file.path).path()) && out.open(QIODevice::WriteOnly));
        out.write(file.text);
    }
    // The verifier checks that ExecStart names an executable file: a mangled path fails it.
    EXPECT_EQ(systemdVerdict(tree.path("config/systemd/user")).toStdString(), "");
}

TEST(ScheduledScanTest, ThisSessionsConfigFolderIsXdgConfigHome)
{
    EXPECT_EQ(ScheduledScan::Place::current("/x/dustlark-cli").configHome, QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")));
}

// The real systemctl, or a launchctl answering as it does, each command noted; a command with
// the word `failing` in it fails as launchctl does.
ScheduledScan::Runner noting(QList<QStringList>& ran, bool real, const QString& failing = {})
{
    return [&ran, real, failing](const QStringList& command) {
        ran.append(command);
        if (real)
            return ScheduledScan::runTool(command);
        ProcessRunner::Result result;
        result.output = ProcessRunner::Output{!failing.isEmpty() && command.contains(failing) ? 5 : 0, {}, {}, false};
        return result;
    };
}

TEST(ScheduledScanTest, LaunchAgentRunsTheReportToolAndIsLoadedForTheGuiSession)
{
    const TempTree tree;
    const ScheduledScan::Place place = macPlace(tree);
    const QString plist = place.home + "/Library/LaunchAgents/app.dustlark.Dustlark.scan.plist";
    QList<QStringList> ran;

    EXPECT_FALSE(ScheduledScan::apply(ScanSchedule::weekly, place, noting(ran, false)));
    const auto agent = PropertyList::read(plist);
    ASSERT_TRUE(agent);
    EXPECT_EQ(agent->string("Label"), "app.dustlark.Dustlark.scan");
    EXPECT_EQ(agent->strings("ProgramArguments"), (QStringList{place.cli, "scan", "--record", "--notify"}));
    EXPECT_EQ(agent->integer(QStringList{"StartCalendarInterval", "Weekday"}), 1);
    EXPECT_EQ(agent->integer(QStringList{"StartCalendarInterval", "Hour"}), 10);
    EXPECT_EQ(agent->string("ProcessType"), "Background");
    EXPECT_EQ(ran, (QList<QStringList>{{"/bin/launchctl", "bootout", "gui/501/app.dustlark.Dustlark.scan"},
                                      {"/bin/launchctl", "bootstrap", "gui/501", plist}}));

    ran.clear();
    EXPECT_EQ(ScheduledScan::apply(ScanSchedule::monthly, place, noting(ran, false, QStringLiteral("bootstrap"))),
              "macOS didn't start the background scan. It starts after your next login.");
    EXPECT_EQ(PropertyList::read(plist)->integer(QStringList{"StartCalendarInterval", "Day"}), 1);
    EXPECT_FALSE(PropertyList::read(plist)->integer(QStringList{"StartCalendarInterval", "Weekday"}));

    ran.clear();
    EXPECT_FALSE(ScheduledScan::apply(ScanSchedule::never, place, noting(ran, false)));
    EXPECT_FALSE(QFile::exists(plist));
    EXPECT_EQ(ran, (QList<QStringList>{{"/bin/launchctl", "bootout", "gui/501/app.dustlark.Dustlark.scan"}}));
}

qint64 modifiedAt(const QString& path)
{
    return QFileInfo(path).lastModified().toSecsSinceEpoch();
}

TEST(ScheduledScanTest, ALinuxScheduleFollowsTheAppToItsNewPlaceAndNothingElse)
{
    const TempTree tree;
    QList<QStringList> ran;
    const ScheduledScan::Place moved = linuxPlace(tree);
    const ScheduledScan::Place before = linuxPlace(tree, "/opt/Dust lark 0.9/bin/dustlark-cli");
    ScheduledScan::apply(ScanSchedule::monthly, before, noting(ran, true));
    EXPECT_EQ(ScheduledScan::scheduledTool(moved), before.cli);
    const QByteArray unrelated = "[Service]\nExecStart=\"/opt/Dust lark 0.9/bin/dustlark-cli\" scan\n";
    tree.file("config/systemd/user/backup.service", unrelated);
    for (const char* file : {"config/systemd/user/backup.service", "config/systemd/user/dustlark-scan.service"})
        tree.setTimes(file, 1'700'000'000);

    ran.clear();
    ScheduledScan::follow(ScanSchedule::monthly, moved, noting(ran, true));
    EXPECT_EQ(ScheduledScan::scheduledTool(moved), moved.cli);
    EXPECT_TRUE(contentsOf(tree.path("config/systemd/user/dustlark-scan.timer")).contains("\nOnCalendar=monthly\n"));
    // The user manager rereads the units (without one running here, nothing after that is tried).
    EXPECT_EQ(ran.value(0), (QStringList{"/usr/bin/systemctl", "--user", "daemon-reload"}));
    EXPECT_EQ(contentsOf(tree.path("config/systemd/user/backup.service")), unrelated);
    EXPECT_EQ(modifiedAt(tree.path("config/systemd/user/backup.service")), 1'700'000'000);

    // Already the current tool, or a command the person put there themselves: left alone.
    tree.setTimes("config/systemd/user/dustlark-scan.service", 1'700'000'000);
    ran.clear();
    ScheduledScan::follow(ScanSchedule::monthly, moved, noting(ran, true));
    const QString wrapped = tree.file("config/systemd/user/dustlark-scan.service", QByteArray("[Service]\nExecStart=\"/home/ada/bin/quiet-scan\"\n"));
    tree.setTimes("config/systemd/user/dustlark-scan.service", 1'700'000'000);
    ScheduledScan::follow(ScanSchedule::monthly, moved, noting(ran, true));
    EXPECT_EQ(modifiedAt(wrapped), 1'700'000'000);
    EXPECT_TRUE(ran.isEmpty());
}

TEST(ScheduledScanTest, ALaunchAgentFollowsTheAppToItsNewPlace)
{
    const TempTree tree;
    QList<QStringList> ran;
    ScheduledScan::Place before = macPlace(tree);
    ScheduledScan::Place moved = before;
    moved.cli = QStringLiteral("/Users/ada/Applications/Dustlark <2>.app/Contents/MacOS/dustlark-cli");
    ScheduledScan::apply(ScanSchedule::weekly, before, noting(ran, false));
    EXPECT_EQ(ScheduledScan::scheduledTool(moved), before.cli);

    ran.clear();
    EXPECT_FALSE(ScheduledScan::follow(ScanSchedule::weekly, moved, noting(ran, false)));
    const QString plist = moved.home + "/Library/LaunchAgents/app.dustlark.Dustlark.scan.plist";
    EXPECT_EQ(PropertyList::read(plist)->strings("ProgramArguments").value(0), moved.cli);
    EXPECT_EQ(ran.value(1), (QStringList{"/bin/launchctl", "bootstrap", "gui/501", plist}));
}

}  // namespace
