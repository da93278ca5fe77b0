#include "scan/TemporaryScanner.h"

#include "machinery/FileInfo.h"
#include "scan/NewestChange.h"
#include "scan/PropertyList.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/SystemPlaces.h"

#include <QFile>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 secondsPerDay = 86'400;
// Busy folders down to two levels below the root are entered (root/a and root/a/b), so old
// entries down to root/a/b/c are found.
constexpr int deepestEnteredLevel = 2;
// The state device.plist gives a simulator that is shut down.
constexpr qint64 simulatorShutDown = 1;

std::optional<QString> realFolder(const QString& path)
{
    char resolved[PATH_MAX];
    if (!::realpath(QFile::encodeName(path).constData(), resolved))
        return std::nullopt;
    const QString real = QFile::decodeName(resolved);
    if (!FileStatus::isFolder(real))
        return std::nullopt;
    return real;
}

struct Identity {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const Identity&) const = default;
};

Identity identityOf(const QString& realPath)
{
    const auto info = FileStatus::of(realPath);
    return info ? Identity{info->st_dev, info->st_ino} : Identity{};
}

// Adds the folder unless one of the roots already is the same folder.
void addRoot(QList<TemporaryScanner::Root>& roots, QList<Identity>& seen, const QString& path, bool isSystem)
{
    const std::optional<QString> real = realFolder(path);
    if (!real)
        return;
    const Identity identity = identityOf(*real);
    if (seen.contains(identity))
        return;
    seen.append(identity);
    roots.append({*real, isSystem});
}

bool isNeverOffered(const QString& name)
{
    return name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1String("com.apple."))
        || name.startsWith(QLatin1String("NSIRD_"));
}

// One walk of a root: collects the groups of old entries.
class OldEntrySearch {
public:
    OldEntrySearch(qint64 cutoff, const CancellationToken* cancellation)
        : m_cutoff(cutoff), m_cancellation(cancellation) {}

    void visit(const QString& folder, int level);
    QList<TemporaryScanner::Group> groups;

private:
    void consider(const QString& path, int level, TemporaryScanner::Group& group);

    qint64 m_cutoff;
    const CancellationToken* m_cancellation;
};

void OldEntrySearch::visit(const QString& folder, int level)
{
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    TemporaryScanner::Group group{folder, {}};
    for (const QString& name : names) {
        if (m_cancellation && m_cancellation->isCancelled())
            return;
        if (!isNeverOffered(name))
            consider(folder + QLatin1Char('/') + name, level, group);
    }
    if (!group.entries.isEmpty())
        groups.append(group);
}

void OldEntrySearch::consider(const QString& path, int level, TemporaryScanner::Group& group)
{
    const auto info = FileStatus::of(path);
    if (!info || S_ISLNK(info->st_mode) || info->st_uid != ::getuid())
        return;
    const bool isFolder = S_ISDIR(info->st_mode);
    const bool isDevice = isFolder && TemporaryScanner::isSimulatorDevice(path);
    const std::optional<qint64> newest = TemporaryScanner::newestChange(path, m_cancellation);
    if (!newest)
        return;
    if (*newest < m_cutoff)
        group.entries.append({path, *newest, isFolder, isDevice});
    else if (isFolder && !isDevice && level <= deepestEnteredLevel)
        visit(path, level + 1);
}

}  // namespace

QList<TemporaryScanner::Root> TemporaryScanner::roots(const QStringList& systemFolders, const QString& home)
{
    QList<Root> roots;
    QList<Identity> seen;
    for (const QString& folder : systemFolders)
        addRoot(roots, seen, folder, true);
    for (const char* name : {"tmp", "temp", "Temp", "TMP"})
        addRoot(roots, seen, home + QLatin1Char('/') + QLatin1String(name), false);
    return roots;
}

QList<TemporaryScanner::Group> TemporaryScanner::oldEntries(const QString& root, int days, const QDateTime& now,
                                                            const CancellationToken* cancellation)
{
    OldEntrySearch search(now.toSecsSinceEpoch() - days * secondsPerDay, cancellation);
    search.visit(root, 1);
    return search.groups;
}

std::optional<qint64> TemporaryScanner::newestChange(const QString& path, const CancellationToken* cancellation)
{
    return NewestChange::of(path, cancellation);
}

bool TemporaryScanner::isSimulatorDevice(const QString& path)
{
    return FileStatus::exists(path + QStringLiteral("/device.plist")) && FileStatus::exists(path + QStringLiteral("/data"));
}

bool TemporaryScanner::isRunningSimulator(const QString& path)
{
    const auto list = PropertyList::read(path + QStringLiteral("/device.plist"));
    const std::optional<qint64> state = list ? list->integer(QStringLiteral("state")) : std::nullopt;
    return state && *state != simulatorShutDown;
}

ScanOutputs TemporaryScanner::scan(const ScanContext& context) const
{
    ScanOutput output;
    output.summary = summary();
    const QStringList systemFolders = m_systemFolders.value_or(SystemPlaces::systemTempFolders());
    for (const Root& root : roots(systemFolders, context.home)) {
        if (context.isCancelled())
            break;
        context.progress->setCurrentFolder(root.path);
        const int days = root.isSystem ? systemDays : ownDays;
        output.items += rows(oldEntries(root.path, days, context.now, &context.cancellation), root, context);
    }
    return {{CategoryID::temporary, output}};
}
