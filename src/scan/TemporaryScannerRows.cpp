// The rows of the temporary category: titles, badges, details, grouping and Claude Code's
// scratch entries.
#include "scan/TemporaryScanner.h"

#include "format/RelativeDate.h"
#include "scan/StampedTarget.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>

namespace {

const QString idPrefixOfFileGroup = QStringLiteral("temp:files:");

QString nameOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

QString rootBadge(const TemporaryScanner::Root& root)
{
    if (root.isSystem)
        //: Badge of a Temporary Files row found in the system's temporary folders
        return QCoreApplication::translate("TemporaryScanner", "System temp");
    //: Badge of a Temporary Files row found in the person's own temp folder (~/tmp)
    return QCoreApplication::translate("TemporaryScanner", "Your temp folder");
}

QString lastChanged(qint64 seconds)
{
    //: Detail of a Temporary Files row; %1 is a relative date like '5 days ago'
    return QCoreApplication::translate("TemporaryScanner", "last changed %1")
        .arg(RelativeDate::marker(QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc())));
}

// A row's measured parts; absent when an entry vanished or the scan was stopped.
struct Measured {
    qint64 bytes = 0;
    QList<FileTarget> targets;
};

std::optional<Measured> measure(const QList<TemporaryScanner::Entry>& entries, const ScanContext& context)
{
    Measured measured;
    for (const TemporaryScanner::Entry& entry : entries) {
        const std::optional<StampedTarget::Measured> one = StampedTarget::measured(entry.path, context);
        if (!one || context.isCancelled())
            return std::nullopt;
        measured.bytes += one->bytes;
        measured.targets.append(one->target);
    }
    return measured;
}

CleanupItem baseRow(const QString& id, const Measured& measured, qint64 newest)
{
    CleanupItem row;
    row.id = id;
    row.category = CategoryID::temporary;
    row.size = measured.bytes;
    row.removal = Removal::trash(measured.targets);
    row.date = QDateTime::fromSecsSinceEpoch(newest, QTimeZone::utc());
    row.detail = lastChanged(newest);
    return row;
}

void describeSimulator(CleanupItem& row, const QString& path, const QString& home)
{
    //: Title and badge of a temporary simulator device found in a temporary folder
    row.title = QCoreApplication::translate("TemporaryScanner", "Simulator device");
    row.badge = row.title;
    //: Detail of a temporary simulator device; %1 is its folder, like '/tmp/XCTestDevices/…'
    row.detail = QCoreApplication::translate("TemporaryScanner", "temporary device set in %1")
                     .arg(PathRules::withTilde(path, home));
    if (TemporaryScanner::isRunningSimulator(path))
        //: Why a running simulator device can't be selected
        row.lockedReason = QCoreApplication::translate("TemporaryScanner", "Running. Shut it down to remove it.");
}

std::optional<CleanupItem> entryRow(const TemporaryScanner::Entry& entry, const TemporaryScanner::Root& root,
                                    const ScanContext& context)
{
    const std::optional<Measured> measured = measure({entry}, context);
    if (!measured)
        return std::nullopt;
    CleanupItem row = baseRow(entry.path, *measured, entry.newestChange);
    row.title = nameOf(entry.path);
    row.badge = rootBadge(root);
    if (entry.isSimulatorDevice) {
        describeSimulator(row, entry.path, context.home);
    } else if (const auto claude = TemporaryScanner::claudeCodeTemp(entry.path.mid(root.path.size() + 1), context.home)) {
        row.title = claude->title;
        row.detail = claude->detail;
        //: Badge of a Claude Code scratch entry in a temporary folder
        row.badge = QCoreApplication::translate("TemporaryScanner", "Claude Code");
        if (claude->isSession)
            row.safetyLevel = Safety::risky;  // it may hold the only copy of a session's work
    }
    return row;
}

std::optional<CleanupItem> fileGroupRow(const TemporaryScanner::Group& group, const QList<TemporaryScanner::Entry>& files,
                                        const TemporaryScanner::Root& root, const ScanContext& context)
{
    const std::optional<Measured> measured = measure(files, context);
    if (!measured)
        return std::nullopt;
    qint64 newest = 0;
    for (const TemporaryScanner::Entry& file : files)
        newest = std::max(newest, file.newestChange);
    CleanupItem row = baseRow(idPrefixOfFileGroup + group.folder, *measured, newest);
    //: Title of a Temporary Files row that gathers the old files of one folder; %1 is the folder's name
    row.title = QCoreApplication::translate("TemporaryScanner", "%n old files in %1", nullptr, int(files.size()))
                    .arg(nameOf(group.folder));
    row.badge = rootBadge(root);
    return row;
}

bool isClaudeScratch(const QStringList& relativeParts)
{
    return !relativeParts.isEmpty() && relativeParts.first().startsWith(QLatin1String("claude-"));
}

bool isClaudeEntry(const TemporaryScanner::Entry& entry, const TemporaryScanner::Root& root)
{
    return isClaudeScratch(entry.path.mid(root.path.size() + 1).split(QLatin1Char('/'), Qt::SkipEmptyParts));
}

// Plain old files of one folder share a row when there are several; folders, simulator devices
// and Claude Code entries each tell their own story, so they always have rows of their own.
QList<CleanupItem> groupRows(const TemporaryScanner::Group& group, const TemporaryScanner::Root& root,
                             const ScanContext& context)
{
    QList<TemporaryScanner::Entry> files;
    QList<TemporaryScanner::Entry> single;
    for (const TemporaryScanner::Entry& entry : group.entries)
        (entry.isFolder || isClaudeEntry(entry, root) ? single : files).append(entry);
    if (files.size() == 1)
        single.append(files.takeFirst());
    QList<CleanupItem> rows;
    if (!files.isEmpty()) {
        if (auto row = fileGroupRow(group, files, root, context))
            rows.append(*row);
    }
    for (const TemporaryScanner::Entry& entry : single) {
        if (auto row = entryRow(entry, root, context))
            rows.append(*row);
    }
    return rows;
}

// The folder a path names below `parent`, following the folders that exist: each "-" of the
// encoded name is either a separator or part of a name.
std::optional<QString> resolveProject(const QString& parent, const QStringList& parts, qsizetype from)
{
    if (from == parts.size())
        return parent;
    for (qsizetype end = parts.size(); end > from; --end) {
        const QString name = parts.mid(from, end - from).join(QLatin1Char('-'));
        const QString candidate = (parent == QLatin1String("/") ? QString() : parent) + QLatin1Char('/') + name;
        if (!name.isEmpty() && FileStatus::isFolder(candidate)) {
            if (auto found = resolveProject(candidate, parts, end))
                return found;
        }
    }
    return std::nullopt;
}

bool isProjectFolderName(const QString& name)
{
    return name.size() > 1 && name.startsWith(QLatin1Char('-'));
}

}  // namespace

QList<CleanupItem> TemporaryScanner::rows(const QList<Group>& groups, const Root& root, const ScanContext& context)
{
    QList<CleanupItem> rows;
    for (const Group& group : groups) {
        if (context.isCancelled())
            break;
        rows += groupRows(group, root, context);
    }
    std::stable_sort(rows.begin(), rows.end(), [](const CleanupItem& a, const CleanupItem& b) { return a.size > b.size; });
    return rows;
}

QString TemporaryScanner::claudeProjectPath(const QString& encodedName)
{
    const QStringList parts = encodedName.mid(1).split(QLatin1Char('-'));
    if (const auto found = resolveProject(QStringLiteral("/"), parts, 0))
        return *found;
    return QLatin1Char('/') + parts.join(QLatin1Char('/'));  // the project is gone: the plain reading
}

// Claude Code keeps its scratch files in "claude-<user id>" folders of the temporary folder:
// one folder per project, named after the project's path with every "/" written as "-"; in it,
// one entry per session. So a "-" name right inside a "claude-" folder is a project, and an
// entry right inside such a project folder is one session's files.
std::optional<TemporaryScanner::ClaudeTemp> TemporaryScanner::claudeCodeTemp(const QString& relativePath,
                                                                             const QString& home)
{
    const QStringList parts = relativePath.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (!isClaudeScratch(parts))
        return std::nullopt;
    const bool inProject = parts.size() >= 2 && isProjectFolderName(parts.at(1));
    if (inProject && parts.size() <= 3) {
        const QString project = PathRules::withTilde(claudeProjectPath(parts.at(1)), home);
        if (parts.size() == 2)
            return ClaudeTemp{
                //: Title of a Claude Code project's scratch folder; %1 is the project's folder, like '~/www/app'
                QCoreApplication::translate("TemporaryScanner", "Claude Code temp files · %1").arg(project),
                //: Detail of a Claude Code project's scratch folder
                QCoreApplication::translate("TemporaryScanner", "Scratchpads and task output of this project's past sessions"),
                false};
        return ClaudeTemp{
            //: Title of one Claude Code session's scratch files; %1 is the project's folder, like '~/www/app'
            QCoreApplication::translate("TemporaryScanner", "Claude Code session files · %1").arg(project),
            //: Detail of one Claude Code session's scratch files
            QCoreApplication::translate("TemporaryScanner", "One past session's scratchpad and task output; it may hold work that isn't saved elsewhere"),
            true};
    }
    return ClaudeTemp{
        //: Title of Claude Code scratch files that belong to no one project
        QCoreApplication::translate("TemporaryScanner", "Claude Code temp files"),
        //: Detail of Claude Code scratch files that belong to no one project
        QCoreApplication::translate("TemporaryScanner", "Scratchpads and task output of past sessions"), false};
}

QString TemporaryScanner::summary(Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop)
        //: Summary of Temporary Files on Linux; %1 and %2 are numbers of days (3 and 30)
        return QCoreApplication::translate("TemporaryScanner",
            "Shown: system temp items untouched for %1+ days (many systems also clear /tmp when they restart) "
            "and items in your own temp folders untouched for %2+ days.").arg(systemDays).arg(ownDays);
    //: Summary of Temporary Files; %1 and %2 are numbers of days (3 and 30)
    return QCoreApplication::translate("TemporaryScanner",
        "Shown: system temp items untouched for %1+ days (macOS also clears /tmp when it restarts) "
        "and items in your own temp folders untouched for %2+ days.").arg(systemDays).arg(ownDays);
}
