#include "scan/ProjectInfo.h"

#include "platform/Platform.h"
#include "scan/WalkNames.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <algorithm>
#include <climits>
#include <fts.h>
#include <string_view>
#include <sys/stat.h>

namespace {

// Files in the project folder and two levels of folders below it count; deeper folders are
// not entered.
constexpr short deepestEnteredLevel = 2;
constexpr qint64 cancellationBatch = 4096;

QDateTime fromNanoseconds(qint64 nanoseconds)
{
    return QDateTime::fromMSecsSinceEpoch(nanoseconds / 1'000'000, QTimeZone::utc());
}

QDateTime modificationDate(const struct stat& info)
{
    return fromNanoseconds(Platform::modificationNanoseconds(info));
}

QString nameOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

QString parentOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

bool isEnteredFolder(const FTSENT* entry)
{
    if (entry->fts_level == FTS_ROOTLEVEL)
        return true;
    const std::string_view name(entry->fts_name, entry->fts_namelen);
    return entry->fts_level <= deepestEnteredLevel && name.front() != '.'
        && !WalkNames::contains(WalkNames::buildFolders, name);
}

std::optional<QDateTime> newer(const std::optional<QDateTime>& a, const std::optional<QDateTime>& b)
{
    if (!a)
        return b;
    if (!b)
        return a;
    return std::max(*a, *b);
}

}  // namespace

ProjectInfo ProjectInfo::of(const QString& path, const QString& home, const CancellationToken* cancellation)
{
    ProjectInfo info;
    info.path = path;
    info.root = repositoryRoot(path, home);
    info.title = nameOf(path);
    if (info.root != path)
        info.title = nameOf(info.root) + path.mid(info.root.size());
    info.lastActivity = lastActivityOf(path, info.root, cancellation);
    return info;
}

QString ProjectInfo::repositoryRoot(const QString& path, const QString& home)
{
    for (QString folder = path; !folder.isEmpty() && folder != home && folder != QLatin1String("/");
         folder = parentOf(folder)) {
        if (FileStatus::of(folder + QStringLiteral("/.git")))
            return folder;
    }
    return path;
}

std::optional<QDateTime> ProjectInfo::lastActivityOf(const QString& path, const QString& root,
                                                   const CancellationToken* cancellation)
{
    std::optional<QDateTime> latest = newestChange(path, projectEntryLimit, cancellation);
    for (const QDateTime& date : gitDates(root))
        latest = newer(latest, date);
    return latest;
}

QList<QDateTime> ProjectInfo::gitDates(const QString& workingCopy)
{
    const QString dotGit = workingCopy + QStringLiteral("/.git");
    const auto info = FileStatus::of(dotGit);
    if (!info)
        return {};
    const std::optional<QString> metadata = S_ISDIR(info->st_mode) ? std::optional(dotGit) : gitFileTarget(workingCopy);
    if (!metadata)
        return {};
    QList<QDateTime> dates;
    for (const char* file : {"/HEAD", "/index"}) {
        if (const auto found = FileStatus::of(*metadata + QLatin1String(file)))
            dates.append(modificationDate(*found));
    }
    return dates;
}

std::optional<QString> ProjectInfo::gitFileTarget(const QString& workingCopy)
{
    const QString dotGit = workingCopy + QStringLiteral("/.git");
    const auto info = FileStatus::of(dotGit);
    QFile file(dotGit);
    if (!info || !S_ISREG(info->st_mode) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QString line = QString::fromUtf8(file.readLine(4096)).trimmed();
    static const QString prefix = QStringLiteral("gitdir:");
    if (!line.startsWith(prefix))
        return std::nullopt;
    const QString target = line.mid(prefix.size()).trimmed();
    if (target.isEmpty())
        return std::nullopt;
    return target.startsWith(QLatin1Char('/')) ? QDir::cleanPath(target)
                                               : QDir::cleanPath(workingCopy + QLatin1Char('/') + target);
}

std::optional<QDateTime> ProjectInfo::newestChange(const QString& workingCopy, qint64 limit,
                                                   const CancellationToken* cancellation)
{
    QByteArray root = QFile::encodeName(workingCopy);
    char* roots[] = {root.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree)
        return std::nullopt;
    std::optional<qint64> newest;
    qint64 entries = 0;
    while (FTSENT* entry = ::fts_read(tree)) {
        if (entry->fts_info == FTS_DP)
            continue;
        if (++entries > limit || (entries % cancellationBatch == 0 && cancellation && cancellation->isCancelled()))
            break;
        if (entry->fts_info == FTS_D && !isEnteredFolder(entry))
            ::fts_set(tree, entry, FTS_SKIP);
        else if (entry->fts_info == FTS_F)
            newest = std::max(newest.value_or(LLONG_MIN), Platform::modificationNanoseconds(*entry->fts_statp));
    }
    ::fts_close(tree);
    return newest ? std::optional(fromNanoseconds(*newest)) : std::nullopt;
}
