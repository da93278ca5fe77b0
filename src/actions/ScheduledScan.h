#pragma once

#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "vocabulary/ScanSchedule.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// The background scan the person turned on with "Scan for me": the report tool, run weekly or
// monthly by the system's own scheduler, tells what it found and never selects or removes
// anything. Linux: a systemd user timer and service in the user's systemd folder; macOS: a
// LaunchAgent in ~/Library/LaunchAgents. The files exist only while the schedule is on.
namespace ScheduledScan {

// Where the schedule lives and what it runs, learned once and handed in.
struct Place {
    Platform::Desktop desktop = Platform::desktop();
    QString home;
    QString configHome;  // $XDG_CONFIG_HOME, else ~/.config
    QString cli;         // the report tool's absolute path
    uint uid = 0;

    // This session's: the home, XDG_CONFIG_HOME, the user id; `cli` as given.
    static Place current(const QString& cli);
};

struct File {
    QString path;
    QByteArray text;
    bool operator==(const File&) const = default;
};

// The report tool's arguments for a scheduled scan.
QStringList scanArguments();

// The files a schedule consists of (none for `never`): the service and the timer, or the
// LaunchAgent's property list.
QList<File> files(ScanSchedule schedule, const Place& place);

// The command lines that hand the written files to the scheduler (`on`) or take them back
// before the files go (`!on`): systemctl --user, or launchctl for the person's GUI session.
QList<QStringList> schedulerCommands(const Place& place, bool on);

// Runs one command line (the executable first); the real runner unless a test checks commands.
using Runner = std::function<ProcessRunner::Result(const QStringList& command)>;
ProcessRunner::Result runTool(const QStringList& command);

// Writes or removes the files for `schedule` and tells the scheduler. Absent when all went
// well; otherwise the sentence to show (the files are written even when no scheduler runs
// now, so the schedule starts at the next login). Blocks: call it off the GUI thread.
std::optional<QString> apply(ScanSchedule schedule, const Place& place, const Runner& run = runTool);

// The report tool the written schedule runs (the service's ExecStart program, the agent's first
// argument); absent when there is no schedule file or it is not in the shape Dustlark writes.
std::optional<QString> scheduledTool(const Place& place);

// After the app was moved or updated to another place, its schedule still runs the old copy's
// report tool: when the written schedule runs a tool of the same name elsewhere, writes it again
// for `place.cli` and tells the scheduler. A schedule that already runs `place.cli`, or whose
// command the person changed to something else, is left as it is. Blocks: call it off the GUI thread.
std::optional<QString> follow(ScanSchedule schedule, const Place& place, const Runner& run = runTool);

}  // namespace ScheduledScan
