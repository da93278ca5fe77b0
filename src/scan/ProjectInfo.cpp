#include "scan/ProjectInfo.h"

#include "machinery/TreeWalker.h"
#include "platform/Platform.h"
#include "scan/ShallowNewest.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <algorithm>
#include <climits>
#include <string_view>
#include <sys/stat.h>

namespace {

QDateTime modificationDate(const struct stat& info)
{
    return ShallowNewest::dateOf(Platform::modificationNanoseconds(info));
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

// The newest file time in the shallow part of a project, giving up after `limit` entries.
class NewestFile : public TreeVisitor {
public:
    explicit NewestFile(qint64 limit) : m_limit(limit) {}

    std::optional<qint64> newest;  // nanoseconds since 1970

    Verdict enterFolder(const TreeEntry& entry) override
    {
        if (!counted())
            return Verdict::Stop;
        return ShallowNewest::enters(entry.name(), entry.depth()) ? Verdict::Enter : Verdict::Skip;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        if (!counted())
            return Verdict::Stop;
        if (S_ISREG(entry.status().st_mode))
            newest = std::max(newest.value_or(LLONG_MIN), Platform::modificationNanoseconds(entry.status()));
        return Verdict::Enter;
    }

private:
    bool counted() { return ++m_entries <= m_limit; }

    qint64 m_limit;
    qint64 m_entries = 0;
};

std::optional<QDateTime> newer(const std::optional<QDateTime>& a, const std::optional<QDateTime>& b)
{
    if (!a)
        return b;
    if (!b)
        return a;
    return std::max(*a, *b);
}

}  // namespace

ProjectInfo ProjectInfo::of(const QString& path, const QString& home, const CancellationToken* cancellation,
                            const ShallowNewest::Known* known)
{
    ProjectInfo info;
    info.path = path;
    info.root = repositoryRoot(path, home);
    info.title = nameOf(path);
    if (info.root != path)
        info.title = nameOf(info.root) + path.mid(info.root.size());
    const auto found = known ? known->constFind(path) : ShallowNewest::Known::const_iterator();
    if (known && found != known->cend())
        info.lastActivity = newestOf(found->has_value() ? std::optional(ShallowNewest::dateOf(**found)) : std::nullopt, info.root);
    else
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
    return newestOf(newestChange(path, projectEntryLimit, cancellation), root);
}

std::optional<QDateTime> ProjectInfo::newestOf(std::optional<QDateTime> newestFile, const QString& root)
{
    for (const QDateTime& date : gitDates(root))
        newestFile = newer(newestFile, date);
    return newestFile;
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
    TreeWalker::Options options;
    options.cancellation = cancellation;
    NewestFile visitor(limit);
    TreeWalker(options).walk(QFile::encodeName(workingCopy), visitor);
    const std::optional<qint64>& newest = visitor.newest;
    return newest ? std::optional(ShallowNewest::dateOf(*newest)) : std::nullopt;
}
