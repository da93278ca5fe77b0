#include "scan/WorktreeFinder.h"

#include "machinery/FileInfo.h"
#include "scan/KnownLocations.h"
#include "scan/ProjectInfo.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <sys/stat.h>

namespace WorktreeFinder {

namespace {

// git's metadata files are a line or two; anything much longer is not theirs.
constexpr qint64 metadataFileLimit = 64 * 1024;

bool isRegularFile(const QString& path)
{
    return FileStatus::isRegularFile(path);
}

// A regular file only: opening a pipe planted under git's name would block the scan.
std::optional<QString> trimmedText(const QString& path)
{
    QFile file(path);
    if (!isRegularFile(path) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(metadataFileLimit);
    if (bytes.isEmpty() && file.error() != QFile::NoError)
        return std::nullopt;
    return QString::fromUtf8(bytes).trimmed();
}

bool isRealFolder(const QString& path)
{
    return FileStatus::isFolder(path);
}

std::optional<QString> realPath(const QString& path)
{
    char resolved[PATH_MAX];
    if (!::realpath(QFile::encodeName(path).constData(), resolved))
        return std::nullopt;
    return QFile::decodeName(resolved);
}

// The worktree folder that the metadata folder's "gitdir" names: the folder holding its ".git".
std::optional<QString> worktreeFolder(const QString& metadata)
{
    const std::optional<QString> gitdir = trimmedText(metadata + QStringLiteral("/gitdir"));
    if (!gitdir || gitdir->isEmpty())
        return std::nullopt;
    const QString absolute = QDir::cleanPath(gitdir->startsWith(QLatin1Char('/'))
                                                 ? *gitdir
                                                 : metadata + QLatin1Char('/') + *gitdir);
    if (absolute.section(QLatin1Char('/'), -1) != QLatin1String(".git"))
        return std::nullopt;
    const QString folder = absolute.section(QLatin1Char('/'), 0, -2);
    return folder.isEmpty() ? std::nullopt : std::optional(folder);
}

bool isMainWorkingCopy(const QString& folder, const QString& repository)
{
    const auto folderReal = realPath(folder);
    return !folderReal || folderReal == realPath(repository);
}

std::optional<Worktree> worktree(const QString& repository, const QString& metadata)
{
    const std::optional<QString> folder = worktreeFolder(metadata);
    if (!folder || !isRealFolder(*folder) || !pointsBack(*folder, metadata) || isMainWorkingCopy(*folder, repository))
        return std::nullopt;
    const std::optional<QString> head = trimmedText(metadata + QStringLiteral("/HEAD"));
    if (!head)
        return std::nullopt;
    static const QString branchPrefix = QStringLiteral("ref: refs/heads/");
    Worktree found{repository, *folder, metadata, std::nullopt, false};
    if (head->startsWith(branchPrefix))
        found.branch = head->mid(branchPrefix.size());
    found.lockedInGit = FileStatus::exists(metadata + QStringLiteral("/locked"));
    return found;
}

}  // namespace

QList<Worktree> worktrees(const QString& repository)
{
    const QString folder = repository + QStringLiteral("/.git/worktrees");
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    QList<Worktree> found;
    for (const QString& name : std::as_const(names)) {
        if (name.startsWith(QLatin1Char('.')))
            continue;
        if (auto one = worktree(repository, folder + QLatin1Char('/') + name))
            found.append(*one);
    }
    return found;
}

bool pointsBack(const QString& worktree, const QString& metadata)
{
    const std::optional<QString> target = ProjectInfo::gitFileTarget(worktree);
    if (!target)
        return false;
    const auto targetReal = realPath(*target);
    return targetReal && targetReal == realPath(metadata);
}

bool isOffered(const Worktree& worktree, const ScanContext& context)
{
    const auto allowed = [&](const QString& path) { return AllowedPlace::contains(path, context.home, context.roots); };
    if (!allowed(worktree.path) || !allowed(worktree.metadata))
        return false;
    if (KnownLocations::isInSyncedHomeFolder(worktree.path, context.home))
        return false;
    return std::none_of(context.safeFolders.begin(), context.safeFolders.end(),
                        [&](const QString& folder) { return PathRules::isAtOrBelow(worktree.path, folder); });
}

}  // namespace WorktreeFinder
