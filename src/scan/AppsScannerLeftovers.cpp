#include "scan/AppsScanner.h"

#include "machinery/FileInfo.h"
#include "scan/AppNames.h"
#include "vocabulary/FileStatus.h"

#include <algorithm>

namespace {

// Library places named exactly after an identifier ("{id}" stands for it).
const QStringList identifierPlaces = {
    QStringLiteral("Application Support/{id}"), QStringLiteral("Caches/{id}"),
    QStringLiteral("Preferences/{id}.plist"), QStringLiteral("Saved Application State/{id}.savedState"),
    QStringLiteral("HTTPStorages/{id}"), QStringLiteral("HTTPStorages/{id}.binarycookies"),
    QStringLiteral("WebKit/{id}"), QStringLiteral("Logs/{id}"), QStringLiteral("Application Scripts/{id}"),
    QStringLiteral("Cookies/{id}.binarycookies"),
};

const QStringList namePlaces = {QStringLiteral("Application Support/"), QStringLiteral("Caches/"), QStringLiteral("Logs/")};

// A Library folder whose entries start with an identifier, and the ending they must have.
struct PrefixPlace {
    QString folder;
    QString suffix;
};

QStringList sortedChildren(const QString& folder)
{
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    return names;
}

// `name` is `identifier` itself or something of it ("com.a.App.Helper" of "com.a.App").
bool isOf(const QString& name, const QString& identifier)
{
    return name.compare(identifier, Qt::CaseInsensitive) == 0
        || (name.size() > identifier.size() && name.startsWith(identifier, Qt::CaseInsensitive)
            && name.at(identifier.size()) == QLatin1Char('.'));
}

// True when a longer identifier that `name` is of belongs to code of another app: then the
// entry is that app's, not the shorter identifier's owner's.
bool claimedByAnother(QString name, const QString& own, const QStringList& identifiers,
                      const AppsScanner::Claims& claims)
{
    name = name.toLower();
    while (name.size() > own.size()) {
        if (claims.identifierUse.value(name) > 0 && !identifiers.contains(name, Qt::CaseInsensitive))
            return true;
        name.truncate(std::max<qsizetype>(0, name.lastIndexOf(QLatin1Char('.'))));
    }
    return false;
}

// The identifiers of the app that no other installed app shares.
QStringList ownIdentifiers(const AppsScanner::Identity& identity, const AppsScanner::Claims& claims)
{
    QStringList own;
    for (const QString& identifier : identity.identifiers) {
        if (AppNames::isReverseDNS(identifier) && claims.identifierUse.value(identifier.toLower()) <= 1)
            own.append(identifier);
    }
    return own;
}

void addExisting(const QString& path, QStringList& paths)
{
    if (FileStatus::exists(path) && !paths.contains(path))
        paths.append(path);
}

void addPrefixed(const QString& library, const PrefixPlace& place, const QStringList& own,
                 const AppsScanner::Claims& claims, QStringList& paths)
{
    const QString folder = library + place.folder;
    for (const QString& name : sortedChildren(folder)) {
        if (!name.endsWith(place.suffix))
            continue;
        const QString stem = name.left(name.size() - place.suffix.size());
        for (const QString& identifier : own) {
            if (isOf(stem, identifier) && !claimedByAnother(stem, identifier, own, claims)) {
                addExisting(folder + QLatin1Char('/') + name, paths);
                break;
            }
        }
    }
}

// The identifier that owns a group container: "group.com.a.App" and "TEAM123456.com.a.App"
// both belong to "com.a.App".
QString groupOwner(const QString& group)
{
    if (group.startsWith(QLatin1String("group.")))
        return group.mid(6);
    const qsizetype dot = group.indexOf(QLatin1Char('.'));
    if (dot == 10 && group.left(dot) == group.left(dot).toUpper())
        return group.mid(dot + 1);
    return group;
}

// File-provider and sync containers may hold the only copy of synced files.
bool isSyncServiceData(const QString& group)
{
    return group.contains(QLatin1String("fileprovider"), Qt::CaseInsensitive)
        || group.contains(QLatin1String("sync"), Qt::CaseInsensitive);
}

void addGroupContainers(const QString& library, const AppsScanner::App& app, const AppsScanner::Identity& identity,
                        const QStringList& own, const AppsScanner::Claims& claims, QStringList& paths)
{
    const QString folder = library + QStringLiteral("Group Containers");
    const bool ownsID = own.contains(app.bundleID);
    for (const QString& name : sortedChildren(folder)) {
        const int users = claims.groupUse.value(name.toLower());
        const bool listed = identity.groups.contains(name, Qt::CaseInsensitive);
        if (users > (listed ? 1 : 0) || isSyncServiceData(name))
            continue;  // another app's group, or shared by several
        const QString owner = groupOwner(name);
        const bool prefixed = ownsID && AppNames::isReverseDNS(owner) && isOf(owner, app.bundleID)
            && !claimedByAnother(owner, app.bundleID, own, claims);
        if (listed || prefixed)
            addExisting(folder + QLatin1Char('/') + name, paths);
    }
}

// Contiguous, case-insensitive.
bool containsRun(const QStringList& words, const QStringList& run)
{
    if (run.isEmpty())
        return false;
    for (qsizetype start = 0; start + run.size() <= words.size(); ++start) {
        bool all = true;
        for (qsizetype i = 0; all && i < run.size(); ++i)
            all = words.at(start + i).compare(run.at(i), Qt::CaseInsensitive) == 0;
        if (all)
            return true;
    }
    return false;
}

bool isUsableFolderName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && name != QLatin1String(".")
        && name != QLatin1String("..");
}

}  // namespace

AppsScanner::Claims AppsScanner::Claims::of(const QList<App>& apps, const QList<Identity>& identities)
{
    Claims claims;
    claims.apps = apps;
    for (const Identity& identity : identities) {
        QSet<QString> identifiers;
        for (const QString& identifier : identity.identifiers)
            identifiers.insert(identifier.toLower());
        for (const QString& identifier : identifiers)
            ++claims.identifierUse[identifier];
        QSet<QString> groups;
        for (const QString& group : identity.groups)
            groups.insert(group.toLower());
        for (const QString& group : groups)
            ++claims.groupUse[group];
    }
    return claims;
}

AppsScanner::Leftovers AppsScanner::leftovers(const App& app, const Identity& identity, const QString& home,
                                              bool fullDiskAccess, const Claims& claims)
{
    const QString library = home + QStringLiteral("/Library/");
    const QStringList own = ownIdentifiers(identity, claims);
    Leftovers result;
    for (const QString& identifier : own) {
        for (QString place : identifierPlaces)
            addExisting(library + place.replace(QLatin1String("{id}"), identifier), result.paths);
    }
    if (fullDiskAccess)
        addPrefixed(library, {QStringLiteral("Containers"), QString()}, own, claims, result.paths);
    addGroupContainers(library, app, identity, own, claims, result.paths);
    addPrefixed(library, {QStringLiteral("Preferences/ByHost"), QStringLiteral(".plist")}, own, claims, result.paths);
    addPrefixed(library, {QStringLiteral("LaunchAgents"), QStringLiteral(".plist")}, own, claims, result.paths);
    for (const QString& folder : nameFolders(app, home)) {
        const QString name = folder.section(QLatin1Char('/'), -1);
        if (const auto owner = nameOwner(name, app, claims.apps))
            result.kept.append({name, owner->name});
        else
            addExisting(folder, result.paths);
    }
    return result;
}

QStringList AppsScanner::nameFolders(const App& app, const QString& home)
{
    QStringList folders;
    if (!isUsableFolderName(app.name))
        return folders;
    for (const QString& place : namePlaces) {
        const QString folder = home + QStringLiteral("/Library/") + place + app.name;
        if (FileStatus::isFolder(folder))
            folders.append(folder);
    }
    return folders;
}

std::optional<AppsScanner::App> AppsScanner::nameOwner(const QString& folder, const App& app, const QList<App>& apps)
{
    const QStringList run = words(folder);
    for (const App& other : apps) {
        if (other.path == app.path)
            continue;
        if (containsRun(words(other.name), run) || containsRun(words(other.bundleID), run))
            return other;
    }
    return std::nullopt;
}

QStringList AppsScanner::words(const QString& text)
{
    QStringList result;
    QString word;
    auto flush = [&] {
        if (!word.isEmpty())
            result.append(word);
        word.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!c.isLetterOrNumber()) {
            flush();
            continue;
        }
        const bool previousLower = i > 0 && text.at(i - 1).isLower();
        const bool acronymEnds = i > 0 && text.at(i - 1).isUpper() && i + 1 < text.size() && text.at(i + 1).isLower();
        if (c.isUpper() && (previousLower || acronymEnds))
            flush();
        word.append(c);
    }
    flush();
    return result;
}
