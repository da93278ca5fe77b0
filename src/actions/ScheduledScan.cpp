#include "actions/ScheduledScan.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include <unistd.h>

namespace ScheduledScan {

namespace {

const QString unitName = QStringLiteral("dustlark-scan");
const QString agentLabel = QStringLiteral("app.dustlark.Dustlark.scan");

QString systemdFolder(const Place& place)
{
    return place.configHome + QStringLiteral("/systemd/user");
}

QString timerPath(const Place& place)
{
    return systemdFolder(place) + QLatin1Char('/') + unitName + QStringLiteral(".timer");
}

// What `systemctl --user enable` makes: the timer wanted by timers.target. Made by hand so the
// schedule holds from the next login also when no user manager runs now.
QString wantsLinkPath(const Place& place)
{
    return systemdFolder(place) + QStringLiteral("/timers.target.wants/") + unitName + QStringLiteral(".timer");
}

QString agentPath(const Place& place)
{
    return place.home + QStringLiteral("/Library/LaunchAgents/") + agentLabel + QStringLiteral(".plist");
}

QString servicePath(const Place& place)
{
    return systemdFolder(place) + QLatin1Char('/') + unitName + QStringLiteral(".service");
}

// One word of an ExecStart line, quoted, with systemd's specifier sign doubled. Variables are
// expanded in the arguments only, so only there is "$" doubled: the program's path keeps it.
QString execWord(const QString& word, bool isProgram)
{
    QString escaped = word;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
        .replace(QLatin1Char('"'), QStringLiteral("\\\""))
        .replace(QLatin1Char('%'), QStringLiteral("%%"));
    if (!isProgram)
        escaped.replace(QLatin1Char('$'), QStringLiteral("$$"));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QByteArray serviceText(const Place& place)
{
    QStringList command{execWord(place.cli, true)};
    for (const QString& argument : scanArguments())
        command.append(execWord(argument, false));
    return QStringLiteral("# Written by Dustlark while \"Scan for me\" is on; removed when it is turned off.\n"
                          "[Unit]\n"
                          "Description=Dustlark scheduled scan (tells what it finds, removes nothing)\n"
                          "\n"
                          "[Service]\n"
                          "Type=oneshot\n"
                          "ExecStart=%1\n"
                          "Nice=19\n"
                          "IOSchedulingClass=idle\n")
        .arg(command.join(QLatin1Char(' ')))
        .toUtf8();
}

QByteArray timerText(ScanSchedule schedule)
{
    // Persistent: a scan missed while the computer was off runs at the next start. The random
    // delay keeps it away from the busy minutes right after logging in.
    return QStringLiteral("# Written by Dustlark while \"Scan for me\" is on; removed when it is turned off.\n"
                          "[Unit]\n"
                          "Description=Dustlark scheduled scan, %1\n"
                          "\n"
                          "[Timer]\n"
                          "OnCalendar=%1\n"
                          "Persistent=true\n"
                          "RandomizedDelaySec=1h\n"
                          "\n"
                          "[Install]\n"
                          "WantedBy=timers.target\n")
        .arg(ScanSchedules::rawValue(schedule))
        .toUtf8();
}

QString xmlText(const QString& text)
{
    return text.toHtmlEscaped();
}

QString fromXmlText(QString text)
{
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

// The first word of an ExecStart line as execWord wrote it; absent for any other shape.
std::optional<QString> programOfExecStart(const QString& command)
{
    if (!command.startsWith(QLatin1Char('"')))
        return std::nullopt;
    QString program;
    for (qsizetype i = 1; i < command.size(); ++i) {
        const QChar c = command.at(i);
        if (c == QLatin1Char('"'))
            return program;
        if ((c == QLatin1Char('\\') || c == QLatin1Char('%')) && i + 1 < command.size())
            ++i;  // "\\", "\"" and "%%" stand for one sign
        program += command.at(i);
    }
    return std::nullopt;
}

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QByteArray agentText(ScanSchedule schedule, const Place& place)
{
    QString arguments;
    for (const QString& argument : QStringList{place.cli} + scanArguments())
        arguments += QStringLiteral("\t\t<string>%1</string>\n").arg(xmlText(argument));
    // Monday or the first of the month, 10:00; launchd runs a start missed during sleep at wake.
    const QString day = schedule == ScanSchedule::weekly ? QStringLiteral("\t\t<key>Weekday</key>\n\t\t<integer>1</integer>\n")
                                                         : QStringLiteral("\t\t<key>Day</key>\n\t\t<integer>1</integer>\n");
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                          "<plist version=\"1.0\">\n"
                          "<dict>\n"
                          "\t<key>Label</key>\n"
                          "\t<string>%1</string>\n"
                          "\t<key>ProgramArguments</key>\n"
                          "\t<array>\n"
                          "%2"
                          "\t</array>\n"
                          "\t<key>StartCalendarInterval</key>\n"
                          "\t<dict>\n"
                          "%3"
                          "\t\t<key>Hour</key>\n"
                          "\t\t<integer>10</integer>\n"
                          "\t\t<key>Minute</key>\n"
                          "\t\t<integer>0</integer>\n"
                          "\t</dict>\n"
                          "\t<key>ProcessType</key>\n"
                          "\t<string>Background</string>\n"
                          "\t<key>LowPriorityIO</key>\n"
                          "\t<true/>\n"
                          "</dict>\n"
                          "</plist>\n")
        .arg(agentLabel, arguments, day)
        .toUtf8();
}

QStringList systemctlUser(const QStringList& arguments)
{
    return QStringList{QStringLiteral("/usr/bin/systemctl"), QStringLiteral("--user")} + arguments;
}

bool succeeded(const ProcessRunner::Result& result)
{
    return result.launched() && result.output->status == 0 && !result.output->timedOut;
}

std::optional<QString> writeFiles(const QList<File>& written)
{
    for (const File& file : written) {
        QDir().mkpath(QFileInfo(file.path).path());
        QSaveFile out(file.path);
        if (!out.open(QIODevice::WriteOnly) || out.write(file.text) != file.text.size() || !out.commit())
            //: Settings, "Scan for me"; %1 is a file path, %2 the system's reason
            return QCoreApplication::translate("ScheduledScan", "Dustlark couldn't write %1: %2").arg(file.path, out.errorString());
    }
    return std::nullopt;
}

std::optional<QString> linkTimer(const Place& place)
{
    const QString link = wantsLinkPath(place);
    QDir().mkpath(QFileInfo(link).path());
    QFile::remove(link);
    if (!QFile::link(QStringLiteral("../") + QFileInfo(timerPath(place)).fileName(), link))
        //: Settings, "Scan for me"; %1 is a file path
        return QCoreApplication::translate("ScheduledScan", "Dustlark couldn't write %1.").arg(link);
    return std::nullopt;
}

// Every file a schedule may have left, whichever it was.
QStringList scheduleFiles(const Place& place)
{
    if (place.desktop == Platform::Desktop::finder)
        return {agentPath(place)};
    return {wantsLinkPath(place), timerPath(place), servicePath(place)};
}

std::optional<QString> runAll(const QList<QStringList>& commands, const Place& place, const Runner& run)
{
    for (const QStringList& command : commands) {
        // Taking back an agent that is not loaded fails harmlessly; only loading must succeed.
        const bool mustSucceed = command.contains(QStringLiteral("bootstrap")) || command.contains(QStringLiteral("daemon-reload"));
        if (succeeded(run(command)) || !mustSucceed)
            continue;
        if (place.desktop == Platform::Desktop::finder)
            //: Settings, "Scan for me", when macOS refused to load the background scan
            return QCoreApplication::translate("ScheduledScan", "macOS didn't start the background scan. It starts after your next login.");
        //: Settings, "Scan for me", on Linux without a running systemd user manager
        return QCoreApplication::translate("ScheduledScan", "The scan is scheduled, but no systemd user manager is running now, so it starts with your next login that runs one.");
    }
    return std::nullopt;
}

}  // namespace

Place Place::current(const QString& cli)
{
    Place place;
    place.home = QDir::homePath();
    place.configHome = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    place.cli = cli;
    place.uid = ::getuid();
    return place;
}

QStringList scanArguments()
{
    return {QStringLiteral("scan"), QStringLiteral("--record"), QStringLiteral("--notify")};
}

QList<File> files(ScanSchedule schedule, const Place& place)
{
    if (schedule == ScanSchedule::never)
        return {};
    if (place.desktop == Platform::Desktop::finder)
        return {{agentPath(place), agentText(schedule, place)}};
    return {{servicePath(place), serviceText(place)},
            {timerPath(place), timerText(schedule)}};
}

QList<QStringList> schedulerCommands(const Place& place, bool on)
{
    if (place.desktop == Platform::Desktop::finder) {
        const QString launchctl = QStringLiteral("/bin/launchctl");
        const QString domain = QStringLiteral("gui/%1").arg(place.uid);
        const QStringList bootout{launchctl, QStringLiteral("bootout"), domain + QLatin1Char('/') + agentLabel};
        if (!on)
            return {bootout};
        // A changed schedule replaces the loaded one: launchd keeps the file it loaded.
        return {bootout, {launchctl, QStringLiteral("bootstrap"), domain, agentPath(place)}};
    }
    const QString timer = unitName + QStringLiteral(".timer");
    if (!on)
        return {systemctlUser({QStringLiteral("stop"), timer})};
    return {systemctlUser({QStringLiteral("daemon-reload")}), systemctlUser({QStringLiteral("restart"), timer})};
}

ProcessRunner::Result runTool(const QStringList& command)
{
    return ProcessRunner::run(command.first(), command.mid(1), std::chrono::seconds(30));
}

std::optional<QString> apply(ScanSchedule schedule, const Place& place, const Runner& run)
{
    if (schedule == ScanSchedule::never) {
        runAll(schedulerCommands(place, false), place, run);
        for (const QString& path : scheduleFiles(place))
            QFile::remove(path);
        if (place.desktop == Platform::Desktop::freedesktop)
            run(systemctlUser({QStringLiteral("daemon-reload")}));  // forgets the removed units
        return std::nullopt;
    }
    if (auto failed = writeFiles(files(schedule, place)))
        return failed;
    if (place.desktop == Platform::Desktop::freedesktop) {
        if (auto failed = linkTimer(place))
            return failed;
    }
    return runAll(schedulerCommands(place, true), place, run);
}

std::optional<QString> scheduledTool(const Place& place)
{
    if (place.desktop == Platform::Desktop::finder) {
        static const QRegularExpression firstArgument(QStringLiteral("<key>ProgramArguments</key>\\s*<array>\\s*<string>([^<]*)</string>"));
        const QRegularExpressionMatch match = firstArgument.match(textOf(agentPath(place)));
        return match.hasMatch() ? std::optional(fromXmlText(match.captured(1))) : std::nullopt;
    }
    const QString execStart = QStringLiteral("ExecStart=");
    for (const QString& line : textOf(servicePath(place)).split(QLatin1Char('\n'))) {
        if (line.startsWith(execStart))
            return programOfExecStart(line.mid(execStart.size()));
    }
    return std::nullopt;
}

std::optional<QString> follow(ScanSchedule schedule, const Place& place, const Runner& run)
{
    if (schedule == ScanSchedule::never)
        return std::nullopt;
    const std::optional<QString> tool = scheduledTool(place);
    // Another program under the same name is the person's own wrapper: theirs to keep.
    if (!tool || *tool == place.cli || QFileInfo(*tool).fileName() != QFileInfo(place.cli).fileName())
        return std::nullopt;
    return apply(schedule, place, run);
}

}  // namespace ScheduledScan
