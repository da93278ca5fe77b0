#include "scan/LocationScanner.h"

#include "machinery/Concurrency.h"
#include "machinery/FileInfo.h"
#include "machinery/FileSizer.h"
#include "platform/Platform.h"
#include "scan/AppNames.h"
#include "scan/PropertyList.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString separator = QStringLiteral(" · ");

// Measuring is disk-bound; a few at once keep the disk busy without crowding the other
// scanners that run beside this one.
constexpr int measuringLimit = 4;

bool isDirectory(const QString& path)
{
    const auto info = FileStatus::of(path);
    return info && S_ISDIR(info->st_mode);
}

// An empty listing means either an empty folder or one we may not read; only opening it tells.
bool canList(const QString& directory)
{
    const int descriptor = ::open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    ::close(descriptor);
    return true;
}

QString nameOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

// "*" matches any run of characters; every other character matches itself.
bool matchesWildcard(const QString& name, const QString& pattern)
{
    const QStringList pieces = pattern.split(QLatin1Char('*'));
    if (!name.startsWith(pieces.first()) || name.size() < pieces.first().size() + pieces.last().size())
        return false;
    qsizetype position = pieces.first().size();
    for (qsizetype i = 1; i + 1 < pieces.size(); ++i) {
        position = name.indexOf(pieces.at(i), position);
        if (position < 0)
            return false;
        position += pieces.at(i).size();
    }
    return name.size() - position >= pieces.last().size() && name.endsWith(pieces.last());
}

QStringList sortedChildren(const QString& directory)
{
    QStringList names = FileInfo::children(directory);
    std::sort(names.begin(), names.end());
    return names;
}

QStringList expandComponent(const QStringList& parents, const QString& component)
{
    QStringList matches;
    for (const QString& parent : parents) {
        const QString base = parent == QLatin1String("/") ? QString() : parent;
        if (!component.contains(QLatin1Char('*'))) {
            matches.append(base + QLatin1Char('/') + component);
            continue;
        }
        for (const QString& name : sortedChildren(parent)) {
            if (!name.startsWith(QLatin1Char('.')) && matchesWildcard(name, component))
                matches.append(base + QLatin1Char('/') + name);
        }
    }
    return matches;
}

bool isInSafeFolder(const QStringList& paths, const ScanContext& context)
{
    for (const QString& path : paths) {
        for (const QString& folder : context.safeFolders) {
            if (PathRules::isAtOrBelow(path, folder))
                return true;
        }
    }
    return false;
}

QString derivedDataTitle(const QString& name)
{
    // Xcode appends "-" and a hash of 28 letters; a shorter tail is part of the name.
    const qsizetype dash = name.lastIndexOf(QLatin1Char('-'));
    if (dash < 0 || name.size() - dash < 21)
        return name;
    return name.left(dash);
}

QString withoutExtension(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.left(dot) : name;
}

QString systemImageTitle(const QString& path)
{
    QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts = parts.mid(std::max<qsizetype>(0, parts.size() - 3));
    if (!parts.isEmpty())
        parts.first().replace(QLatin1String("android-"), QLatin1String("Android "));
    return parts.join(separator);
}

QString huggingFaceTitle(const QString& name)
{
    const QStringList parts = name.split(QStringLiteral("--"));
    if (parts.size() < 2)
        return name;
    return parts.mid(1).join(QLatin1Char('/'));
}

std::optional<QString> derivedDataDetail(const QString& folder, const QString& home)
{
    const auto workspace = PropertyList::string(folder + QStringLiteral("/info.plist"), QStringLiteral("WorkspacePath"));
    if (!workspace || workspace->isEmpty())
        return std::nullopt;
    QString detail = PathRules::withTilde(*workspace, home);
    if (FileStatus::of(*workspace))
        return detail;
    //: Fact in the detail line of an Xcode DerivedData row, after the project's path
    return detail + separator + QCoreApplication::translate("LocationScanner", "project no longer exists");
}

// The locale's long date without the weekday and with short month names ("Jan 15, 2024",
// "15. Jan. 2024"), which is what an abbreviated date reads like.
QString abbreviatedDate(const QDate& date)
{
    const QLocale locale;
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(QRegularExpression(QStringLiteral("d{4}[^dMy]*")));
    format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
    return locale.toString(date, format.trimmed());
}

QString archiveDetail(const QString& archive)
{
    std::optional<QDateTime> created = Platform::birthTime(archive);
    if (!created) {
        const auto info = FileStatus::of(archive);
        if (!info)
            return {};
        created = QDateTime::fromSecsSinceEpoch(info->st_mtime);
    }
    //: Detail line of an Xcode archive row; %1 is the date it was archived, like "Jan 15, 2024"
    return QCoreApplication::translate("LocationScanner", "Archived %1").arg(abbreviatedDate(created->toLocalTime().date()));
}

// Per-child rows: every visible entry of every match that is a folder.
void addChildCandidates(const Location& location, const QStringList& matches, const ScanContext& context,
                        LocationScanner::Candidates& result)
{
    for (const QString& match : matches) {
        if (!isDirectory(match))
            continue;
        const QStringList names = sortedChildren(match);
        if (names.isEmpty() && !canList(match)) {
            ++result.unreadableFolders;
            continue;
        }
        context.progress->addEntries(names.size());
        for (const QString& name : names) {
            if (name.startsWith(QLatin1Char('.')) || location.skippedChildren.contains(name))
                continue;
            const QString path = match + QLatin1Char('/') + name;
            result.list.append({{path}, LocationScanner::title(path, location.naming),
                                LocationScanner::detail(path, location.naming, location.detail, context.home), false});
        }
    }
}

void addJoinedCandidate(const Location& location, const QStringList& matches, LocationScanner::Candidates& result)
{
    if (matches.isEmpty())
        return;
    result.list.append({matches, LocationScanner::title(matches.first(), location.naming),
                        location.detail.value_or(QString()), false});
}

void addCandidates(const Location& location, const ScanContext& context, LocationScanner::Candidates& result)
{
    QStringList matches;
    for (const QString& pattern : location.paths)
        matches += LocationScanner::expand(context.home + QLatin1Char('/') + pattern);
    const qsizetype first = result.list.size();
    const int unreadableBefore = result.unreadableFolders;
    if (location.perChild)
        addChildCandidates(location, matches, context, result);
    else
        addJoinedCandidate(location, matches, result);
    for (qsizetype i = first; i < result.list.size(); ++i)
        result.list[i].unreadable = result.unreadableFolders > unreadableBefore;
}

struct Measured {
    std::optional<CleanupItem> row;
    int unreadableFolders = 0;
    qint64 bytes = 0;
    qint64 latestChange = 0;  // seconds since 1970
    QList<FileTarget> targets;
    bool stopped = false;
};

// Sums the candidate's paths; a path that vanished since it was found is left out.
Measured measurePaths(const QStringList& paths, const ScanContext& context)
{
    Measured measured;
    for (const QString& path : paths) {
        const auto target = FileTarget::make(path);
        if (!target)
            continue;
        context.progress->setCurrentFolder(path);
        const FileSizer::Measurement size = FileSizer::measure(path, context.progress.get(), &context.cancellation);
        measured.stopped = context.isCancelled();
        if (measured.stopped)
            return measured;  // a partial size would understate the row
        measured.unreadableFolders += size.unreadable > 0 ? 1 : 0;
        measured.bytes += size.bytes;
        measured.latestChange = std::max(measured.latestChange, size.latestChange);
        measured.targets.append(*target);
    }
    return measured;
}

Measured measureCandidate(const LocationScanner::Candidate& candidate, CategoryID category, const ScanContext& context)
{
    Measured measured = measurePaths(candidate.paths, context);
    if (measured.stopped || measured.bytes <= LocationScanner::largestIgnoredSize || measured.targets.isEmpty())
        return measured;
    CleanupItem row;
    row.id = measured.targets.first().path;
    row.category = category;
    row.title = candidate.title;
    row.detail = candidate.detail;
    row.size = measured.bytes;
    row.removal = Removal::trash(measured.targets);
    if (measured.latestChange > 0)
        row.date = QDateTime::fromSecsSinceEpoch(measured.latestChange, QTimeZone::utc());
    measured.row = row;
    return measured;
}

}  // namespace

QStringList LocationScanner::expand(const QString& absolutePattern)
{
    QStringList current = {QStringLiteral("/")};
    for (const QString& component : absolutePattern.split(QLatin1Char('/'), Qt::SkipEmptyParts))
        current = expandComponent(current, component);
    QStringList existing;
    for (const QString& path : current) {
        if (path != QLatin1String("/") && FileStatus::of(path))
            existing.append(path);
    }
    return existing;
}

QString LocationScanner::title(const QString& path, const Location::Naming& naming)
{
    const QString name = nameOf(path);
    if (const auto* fixed = naming.as<Location::Naming::Fixed>())
        return fixed->title;
    if (const auto* named = naming.as<Location::Naming::Name>())
        return named->prefix + name;
    if (naming.as<Location::Naming::ParentAndName>())
        return nameOf(path.section(QLatin1Char('/'), 0, -2)) + separator + name;
    if (naming.as<Location::Naming::AppName>())
        return AppNames::name(name);
    if (naming.as<Location::Naming::DerivedData>())
        return derivedDataTitle(name);
    if (naming.as<Location::Naming::Archive>())
        return withoutExtension(name);
    if (naming.as<Location::Naming::SystemImage>())
        return systemImageTitle(path);
    return huggingFaceTitle(name);
}

QString LocationScanner::detail(const QString& path, const Location::Naming& naming,
                                const std::optional<QString>& fallback, const QString& home)
{
    std::optional<QString> own;
    if (naming.as<Location::Naming::DerivedData>())
        own = derivedDataDetail(path, home);
    else if (naming.as<Location::Naming::Archive>())
        own = archiveDetail(path);
    if (own && !own->isEmpty())
        return *own;
    return fallback.value_or(QString());
}

LocationScanner::Candidates LocationScanner::candidates(const QList<Location>& locations, const ScanContext& context)
{
    Candidates result;
    for (const Location& location : locations) {
        if (context.isCancelled())
            break;
        addCandidates(location, context, result);
    }
    result.list.removeIf([&](const Candidate& candidate) { return isInSafeFolder(candidate.paths, context); });
    return result;
}

QList<CleanupItem> LocationScanner::measure(const QList<Candidate>& candidates, CategoryID category,
                                            const ScanContext& context, int* unreadableFolders)
{
    const std::vector<Candidate> work(candidates.begin(), candidates.end());
    const std::vector<Measured> measured = Concurrency::map(work, measuringLimit, context.cancellation,
        [&](const Candidate& candidate) { return measureCandidate(candidate, category, context); });
    QList<CleanupItem> rows;
    for (const Measured& one : measured) {
        if (unreadableFolders)
            *unreadableFolders += one.unreadableFolders;
        if (one.row)
            rows.append(*one.row);
    }
    return rows;
}

QString LocationScanner::unreadableNote(Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop)
        //: Note above a category's list on Linux when some folders could not be read
        return QCoreApplication::translate("LocationScanner", "Some folders couldn't be read: their permissions don't let you open them.");
    //: Note above a category's list when some folders could not be read
    return QCoreApplication::translate("LocationScanner",
        "Some folders couldn't be read. Give Dustlark Full Disk Access in Settings to include them.");
}

ScanOutputs LocationScanner::scan(const ScanContext& context) const
{
    Candidates found = candidates(locations, context);
    int unreadable = found.unreadableFolders;
    ScanOutput output;
    output.items = measure(found.list, category, context, &unreadable);
    if (unreadable > 0)
        output.notes.append(unreadableNote());
    return {{category, output}};
}
