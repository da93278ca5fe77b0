#include "format/RelativeDate.h"
#include "machinery/FileSizer.h"
#include "platform/Platform.h"
#include "scan/GitCommand.h"
#include "scan/ProjectScanner.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTimeZone>

#include <chrono>
#include <sys/stat.h>

// Turning the walk's build folders and large files into rows.

namespace {

using namespace std::chrono_literals;

constexpr auto trackedFilesTimeLimit = 30s;

QString nameOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

// A committed "build" folder may hold sources rather than output, so only that name is
// worth a git run; the other build-folder names are never committed on purpose.
int trackedCount(const Artifact& artifact, const std::optional<QString>& git, const CancellationToken* cancellation)
{
    if (artifact.name != QLatin1String("build") || !git)
        return 0;
    return ProjectScanner::trackedFiles(artifact, *git, cancellation);
}

QString buildFolderDetail(const ProjectInfo* project, int tracked)
{
    QStringList facts;
    if (project && project->lastActivity)
        //: Fact in a Project Builds row's detail line; %1 is a relative date like '3 months ago'
        facts << QCoreApplication::translate("ProjectScanner", "project changed %1")
                     .arg(RelativeDate::marker(*project->lastActivity));
    if (tracked > 0)
        //: Fact in a Project Builds row's detail line; %n is how many files in the folder git tracks
        facts << QCoreApplication::translate("ProjectScanner", "%n files in it are tracked by git", nullptr, tracked);
    return facts.join(QStringLiteral(" · "));
}

std::optional<FileTarget::ContentStamp> contentStamp(const QString& path)
{
    const auto info = FileStatus::of(path);
    if (!info || !S_ISREG(info->st_mode))
        return std::nullopt;
    return FileTarget::ContentStamp::of(*info);
}

}  // namespace

std::optional<CleanupItem> ProjectScanner::buildFolderRow(const Artifact& artifact, const FileSizer::Measurement& size,
                                                          const ProjectInfo* project, const std::optional<QString>& git,
                                                          const ScanContext& context)
{
    // A folder without a single file frees next to nothing; counting files rather than bytes
    // keeps that true where even an empty folder takes a block (ext4, unlike APFS).
    if (!size.complete || size.bytes < 1 || size.files == 0)
        return std::nullopt;
    const std::optional<FileTarget> target = FileTarget::make(artifact.path);
    if (!target)
        return std::nullopt;
    const int tracked = trackedCount(artifact, git, &context.cancellation);
    CleanupItem item;
    item.id = artifact.path;
    item.category = CategoryID::projects;
    item.title = project ? project->title : nameOf(artifact.project);
    item.badge = artifact.name;
    item.detail = buildFolderDetail(project, tracked);
    item.size = size.bytes;
    item.removal = Removal::trash({*target});
    item.date = project ? project->lastActivity : std::nullopt;
    item.projectPath = artifact.project;
    if (tracked > 0)
        item.safetyLevel = Safety::askAI;
    return item;
}

std::optional<CleanupItem> ProjectScanner::largeFileRow(const LargeFile& file, const ScanContext& context)
{
    std::optional<FileTarget> target = FileTarget::watching(file.path, {});
    const std::optional<FileTarget::ContentStamp> stamp = contentStamp(file.path);
    if (!target || !stamp)
        return std::nullopt;
    target->content = stamp;  // a file rewritten since the scan is not the one the person chose
    CleanupItem item;
    item.id = file.path;
    item.category = CategoryID::largeFiles;
    item.title = PathRules::withTilde(file.path, context.home);
    item.size = file.size;
    item.removal = Removal::trash({*target});
    item.date = lastOpened(file.path);
    if (item.date) {
        //: Fact in a Large Files row's detail line; %1 is a relative date like '3 months ago'
        item.detail = QCoreApplication::translate("ProjectScanner", "opened %1").arg(RelativeDate::marker(*item.date));
        return item;
    }
    // Not read since it was written (or the disk keeps no reading times): when it last changed
    // is the date there is, and the row still says when that was.
    item.date = QDateTime::fromMSecsSinceEpoch(stamp->modified / 1'000'000, QTimeZone::utc());
    //: Fact in a Large Files row's detail line when it was never opened after its last change; %1 is a relative date like '3 months ago'
    item.detail = QCoreApplication::translate("ProjectScanner", "changed %1").arg(RelativeDate::marker(*item.date));
    return item;
}

int ProjectScanner::trackedFiles(const Artifact& artifact, const QString& git, const CancellationToken* cancellation)
{
    // The folder is named relative to its project, where git runs, so a project reached through
    // a symbolic link (macOS's /var, /tmp) still matches git's own idea of the working tree.
    const std::optional<QString> names = GitCommand::succeeded(GitCommand::run(
        git, artifact.project,
        {QStringLiteral("ls-files"), QStringLiteral("-z"), QStringLiteral("--"), nameOf(artifact.path)},
        trackedFilesTimeLimit, cancellation));
    if (!names)
        return 0;
    return int(names->split(QLatin1Char('\0'), Qt::SkipEmptyParts).size());
}
