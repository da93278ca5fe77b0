#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "machinery/FileSizer.h"
#include "scan/GitCommand.h"
#include "scan/ProjectInfo.h"
#include "scan/WorktreeFinder.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <sys/stat.h>
#include <vector>

// Turning found worktrees into rows of the Git Worktrees category.
namespace WorktreeFinder {

namespace {

// Each worktree may run three git commands in a row; three worktrees at once keep git from
// crowding out the rest of the scan.
constexpr int worktreesAtOnce = 3;
// An agent's worktree can be large; its newest change is worth a longer look than a project's.
constexpr qint64 worktreeEntryLimit = 1'000'000;
constexpr qint64 quietSeconds = 86'400;

QString nameOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

// Trashing the metadata folder with the worktree leaves git nothing stale to prune; it is
// offered only where the remover can reach it without going through a symbolic link.
bool isOwnRealPath(const QString& path)
{
    char resolved[PATH_MAX];
    return ::realpath(QFile::encodeName(path).constData(), resolved) && QFile::decodeName(resolved) == path;
}

std::optional<QList<FileTarget>> targetsOf(const Worktree& worktree)
{
    const QString lockFile = worktree.metadata + QStringLiteral("/locked");
    std::optional<FileTarget> folder = FileTarget::watching(worktree.path, {});
    if (!folder)
        return std::nullopt;
    folder->quietForADay = true;
    folder->gitLockFile = lockFile;
    QList<FileTarget> targets{*folder};
    std::optional<FileTarget> metadata = FileTarget::make(worktree.metadata);
    if (metadata && isOwnRealPath(worktree.metadata)) {
        metadata->gitLockFile = lockFile;
        targets.append(*metadata);
    }
    return targets;
}

std::optional<QDateTime> lastActivity(const Worktree& worktree, const ScanContext& context)
{
    std::optional<QDateTime> latest = ProjectInfo::newestChange(worktree.path, worktreeEntryLimit, &context.cancellation);
    for (const QDateTime& date : ProjectInfo::gitDates(worktree.path)) {
        if (!latest || date > *latest)
            latest = date;
    }
    return latest;
}

QString changesFact(const Worktree& worktree, const std::optional<QString>& git, const CancellationToken* cancellation)
{
    if (!git)
        //: Fact in a Git Worktrees row's detail line when git is missing
        return QCoreApplication::translate("WorktreeFinder", "not checked for changes: git isn't installed");
    const std::optional<QStringList> filters = filtersOff(worktree.path, *git, cancellation);
    const std::optional<int> changes = filters ? uncommittedChanges(worktree.path, *git, *filters, cancellation)
                                               : std::nullopt;
    if (!changes)
        //: Fact in a Git Worktrees row's detail line when git couldn't tell what changed
        return QCoreApplication::translate("WorktreeFinder", "not checked for changes");
    if (*changes == 0)
        //: Fact in a Git Worktrees row's detail line: no file differs from the last commit
        return QCoreApplication::translate("WorktreeFinder", "everything committed");
    //: Fact in a Git Worktrees row's detail line; %n is the number of files not committed
    return QCoreApplication::translate("WorktreeFinder", "%n files not committed", nullptr, *changes);
}

QString detail(const Worktree& worktree, const std::optional<QDateTime>& date, const ScanContext& context,
               const std::optional<QString>& git)
{
    QStringList facts;
    if (date)
        //: Fact in a Git Worktrees row's detail line; %1 is a relative date like '3 months ago'
        facts << QCoreApplication::translate("WorktreeFinder", "changed %1").arg(RelativeDate::marker(*date));
    facts << changesFact(worktree, git, &context.cancellation);
    const std::optional<int> loose = !worktree.branch && git ? commitsOnNoBranch(worktree.path, *git, &context.cancellation)
                                                              : std::nullopt;
    if (loose && *loose > 0)
        //: Fact in a Git Worktrees row's detail line; %n commits only this detached worktree holds
        facts << QCoreApplication::translate("WorktreeFinder", "%n commits on no branch", nullptr, *loose);
    return facts.join(QStringLiteral(" · "));
}

// An unknown age counts as recent: a worktree an agent is using must never be offered.
std::optional<QString> lockedReason(const Worktree& worktree, const std::optional<QDateTime>& date, const QDateTime& now)
{
    if (worktree.lockedInGit)
        return RemovalReasons::gitLocked();
    if (!date || *date > now.addSecs(-quietSeconds))
        return RemovalReasons::changedInLastDay();
    return std::nullopt;
}

std::vector<Worktree> offeredWorktrees(QStringList repositories, const ScanContext& context)
{
    repositories.sort();
    repositories.removeDuplicates();
    std::vector<Worktree> offered;
    for (const QString& repository : std::as_const(repositories)) {
        for (const Worktree& worktree : worktrees(repository)) {
            if (isOffered(worktree, context))
                offered.push_back(worktree);
        }
    }
    return offered;
}

}  // namespace

std::optional<CleanupItem> row(const Worktree& worktree, const ScanContext& context, const std::optional<QString>& git)
{
    const std::optional<QList<FileTarget>> targets = targetsOf(worktree);
    if (!targets)
        return std::nullopt;
    const FileSizer::Measurement size = FileSizer::measure(worktree.path, context.progress.get(), &context.cancellation);
    if (!size.complete)
        return std::nullopt;
    CleanupItem item;
    item.id = worktree.path;
    item.category = CategoryID::worktrees;
    item.title = nameOf(worktree.path);
    //: Badge of a git worktree whose HEAD is detached
    item.badge = worktree.branch ? *worktree.branch : QCoreApplication::translate("WorktreeFinder", "No branch");
    item.size = size.bytes;
    item.date = lastActivity(worktree, context);
    item.detail = detail(worktree, item.date, context, git);
    item.lockedReason = lockedReason(worktree, item.date, context.now);
    item.projectPath = worktree.repository;
    item.removal = Removal::trash(*targets);
    return item;
}

ScanOutput items(const QStringList& repositories, const ScanContext& context, const QStringList& gitCandidates)
{
    const std::vector<Worktree> offered = offeredWorktrees(repositories, context);
    ScanOutput output;
    if (offered.empty())
        return output;
    const std::optional<QString> git = GitCommand::locate(gitCandidates);
    if (!git)
        output.notes.append(gitMissingNote());
    const auto rows = Concurrency::map(offered, worktreesAtOnce, context.cancellation,
                                       [&](const Worktree& worktree) { return row(worktree, context, git); });
    for (const std::optional<CleanupItem>& item : rows) {
        if (item)
            output.items.append(*item);
    }
    std::sort(output.items.begin(), output.items.end(), [](const CleanupItem& a, const CleanupItem& b) {
        // Every worktree row names its project; value_or spares the optimiser a doubt about that.
        return std::tuple(a.projectPath.value_or(QString()), a.id) < std::tuple(b.projectPath.value_or(QString()), b.id);
    });
    return output;
}

QString gitMissingNote()
{
    //: Note above the Git Worktrees list when no git is installed
    return QCoreApplication::translate("WorktreeFinder",
        "Git isn't installed, so Dustlark can't see changes not committed in these worktrees. "
        "Install Xcode's command line tools to see them.");
}

}  // namespace WorktreeFinder
