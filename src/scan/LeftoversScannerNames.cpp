#include "scan/LeftoversScanner.h"

#include "machinery/Concurrency.h"
#include "machinery/FileInfo.h"
#include "scan/AppNames.h"
#include "scan/AppsScanner.h"
#include "scan/PropertyList.h"
#include "vocabulary/FileStatus.h"

#include <QRegularExpression>

namespace {

// The Library folders where apps keep data under their identifier.
const QStringList identifierFolders = {
    QStringLiteral("Application Support"), QStringLiteral("Caches"), QStringLiteral("Preferences"),
    QStringLiteral("Saved Application State"), QStringLiteral("HTTPStorages"), QStringLiteral("WebKit"),
    QStringLiteral("Logs"), QStringLiteral("Application Scripts"), QStringLiteral("Cookies"),
    QStringLiteral("Group Containers"), QStringLiteral("Preferences/ByHost"),
};

// Name endings removed before the identifier is read, in this order.
const QStringList suffixes = {QStringLiteral(".plist"), QStringLiteral(".savedState"),
                              QStringLiteral(".binarycookies"), QStringLiteral(".ShipIt")};

// Where installed apps keep the code whose data must not count as left over.
const QStringList nestedHelpers = {QStringLiteral("Library/LoginItems"), QStringLiteral("Helpers"),
                                   QStringLiteral("Frameworks"), QStringLiteral("Applications")};

// A ByHost preference ends in the machine's UUID or its 12-digit hardware address.
const QRegularExpression& hostSuffix()
{
    static const QRegularExpression pattern(
        QStringLiteral("\\.([0-9A-Fa-f]{8}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{4}-[0-9A-Fa-f]{12}|[0-9A-Fa-f]{12})$"));
    return pattern;
}

// Application groups are named "group.ID" or "TEAMID12AB.ID".
QString withoutGroupPrefix(const QString& name)
{
    if (name.startsWith(QLatin1String("group.")))
        return name.mid(6);
    static const QRegularExpression team(QStringLiteral("^[A-Z0-9]{10}\\."));
    const auto match = team.match(name);
    return match.hasMatch() ? name.mid(match.capturedLength()) : name;
}

void addEntries(const QString& folder, LeftoversScanner::Groups& groups)
{
    for (const QString& name : FileInfo::children(folder)) {
        if (const auto identifier = LeftoversScanner::identifier(name))
            groups[*identifier].append(folder + QLatin1Char('/') + name);
    }
}

// An agent whose program is still there is in use, whatever installed it; one whose program is
// gone goes with the app it names, which can no longer be read, so with the agent's own name.
void addLaunchAgents(const QString& folder, LeftoversScanner::Groups& groups)
{
    for (const QString& name : FileInfo::children(folder)) {
        if (!name.endsWith(QLatin1String(".plist")))
            continue;
        const QString path = folder + QLatin1Char('/') + name;
        const auto program = LeftoversScanner::launchAgentProgram(path);
        if (program && FileStatus::exists(*program))
            continue;
        if (const auto identifier = LeftoversScanner::identifier(name))
            groups[*identifier].append(path);
    }
}

}  // namespace

QSet<QString> LeftoversScanner::installedIdentifiers(const AppFolders& folders, const QString& home)
{
    QSet<QString> installed = {AppsScanner::ownBundleID.toLower()};
    for (const QString& folder : folders.forInstalledIdentifiers(home)) {
        for (const AppsScanner::App& app : AppsScanner::appsIn(folder)) {
            installed.insert(app.bundleID.toLower());
            for (const QString& nested : AppsScanner::nestedCode(app.path, nestedHelpers, AppsScanner::nestingDepth))
                installed.insert(nested.toLower());
        }
    }
    return installed;
}

QSet<QString> LeftoversScanner::installedGroups(const AppFolders& folders, const QString& home,
                                                const std::optional<QString>& codesign,
                                                const CancellationToken& cancellation)
{
    if (!codesign)
        return {};
    std::vector<QString> bundles;
    for (const QString& folder : folders.forInstalledIdentifiers(home)) {
        for (const AppsScanner::App& app : AppsScanner::appsIn(folder))
            bundles.push_back(app.path);
    }
    const auto groupLists = Concurrency::map(bundles, 4, cancellation,
                                             [&](const QString& bundle) { return AppsScanner::appGroups(bundle, codesign); });
    QSet<QString> groups;
    for (const QStringList& list : groupLists) {
        for (const QString& group : list)
            groups.insert(group.toLower());
    }
    return groups;
}

LeftoversScanner::Groups LeftoversScanner::withoutGroups(const Groups& candidates, const QSet<QString>& groups)
{
    Groups result;
    for (auto it = candidates.begin(); it != candidates.end(); ++it) {
        QStringList paths = it.value();
        paths.removeIf([&](const QString& path) {
            return path.section(QLatin1Char('/'), -2, -2) == QLatin1String("Group Containers")
                && groups.contains(path.section(QLatin1Char('/'), -1).toLower());
        });
        if (!paths.isEmpty())
            result.insert(it.key(), paths);
    }
    return result;
}

LeftoversScanner::Groups LeftoversScanner::candidates(const QString& home, bool fullDiskAccess)
{
    const QString library = home + QStringLiteral("/Library/");
    Groups groups;
    for (const QString& folder : identifierFolders)
        addEntries(library + folder, groups);
    if (fullDiskAccess)
        addEntries(library + QStringLiteral("Containers"), groups);
    addLaunchAgents(library + QStringLiteral("LaunchAgents"), groups);
    return groups;
}

LeftoversScanner::Groups LeftoversScanner::removed(const Groups& candidates, const QSet<QString>& installed)
{
    QSet<QString> vendors;
    for (const QString& identifier : installed)
        vendors.insert(vendor(identifier));
    Groups result;
    for (auto it = candidates.begin(); it != candidates.end(); ++it) {
        const QString identifier = it.key().toLower();
        if (identifier.startsWith(QLatin1String("com.apple.")) || installed.contains(identifier)
            || vendors.contains(vendor(identifier)))
            continue;
        result.insert(it.key(), it.value());
    }
    return result;
}

std::optional<QString> LeftoversScanner::identifier(const QString& name)
{
    if (name.startsWith(QLatin1Char('.')))
        return std::nullopt;
    QString stem = name;
    for (const QString& suffix : suffixes) {
        if (stem.endsWith(suffix))
            stem.chop(suffix.size());
    }
    stem = withoutGroupPrefix(stem);
    stem.remove(hostSuffix());
    if (!AppNames::isReverseDNS(stem))
        return std::nullopt;
    return stem;
}

QString LeftoversScanner::vendor(const QString& identifier)
{
    return identifier.section(QLatin1Char('.'), 0, 1).toLower();
}

std::optional<QString> LeftoversScanner::launchAgentProgram(const QString& plist)
{
    const auto agent = PropertyList::read(plist);
    if (!agent)
        return std::nullopt;
    if (auto program = agent->string(QStringLiteral("Program")); program && !program->isEmpty())
        return program;
    const QStringList arguments = agent->strings(QStringLiteral("ProgramArguments"));
    if (arguments.isEmpty() || arguments.first().isEmpty())
        return std::nullopt;
    return arguments.first();
}

QString LeftoversScanner::displayName(const QString& identifier, const QStringList& paths)
{
    for (const QString& path : paths) {
        if (!path.contains(QLatin1String("/LaunchAgents/")))
            continue;
        const QString program = launchAgentProgram(path).value_or(QString());
        const qsizetype end = program.indexOf(QLatin1String(".app/"));
        if (end > 0)
            return program.left(end).section(QLatin1Char('/'), -1);
    }
    return identifier;
}
