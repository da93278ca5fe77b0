#include "scan/AppNames.h"

#include "scan/PropertyList.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <optional>

namespace AppNames {

namespace {

const QString appSuffix = QStringLiteral(".app");

// First components of two-part identifiers ("io.sentry"); three or more parts need no list.
const QSet<QString>& commonTopLevelDomains()
{
    static const QSet<QString> domains = {
        QStringLiteral("com"), QStringLiteral("org"), QStringLiteral("net"), QStringLiteral("io"),
        QStringLiteral("dev"), QStringLiteral("app"), QStringLiteral("co"), QStringLiteral("me"),
        QStringLiteral("ai"), QStringLiteral("de"), QStringLiteral("uk"), QStringLiteral("fr"),
        QStringLiteral("jp"), QStringLiteral("ru"), QStringLiteral("us"), QStringLiteral("edu"),
    };
    return domains;
}

void addBundle(const QString& bundle, Directory& directory)
{
    const auto info = PropertyList::read(bundle + QStringLiteral("/Contents/Info.plist"));
    if (!info)
        return;
    const auto identifier = info->string(QStringLiteral("CFBundleIdentifier"));
    if (!identifier || identifier->isEmpty())
        return;
    QString display = info->string(QStringLiteral("CFBundleDisplayName")).value_or(QString());
    if (display.isEmpty())
        display = info->string(QStringLiteral("CFBundleName")).value_or(QString());
    if (display.isEmpty())
        display = QFileInfo(bundle).completeBaseName();
    directory.insert(identifier->toLower(), display);
}

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
}

void addFolder(const QString& folder, Directory& directory, bool descend)
{
    for (const QString& entry : entriesOf(folder)) {
        const QString path = folder + QLatin1Char('/') + entry;
        if (entry.endsWith(appSuffix))
            addBundle(path, directory);
        else if (descend)
            addFolder(path, directory, false);
    }
}

// The name of the installed app whose identifier is `identifier` or the longest prefix of
// it that ends at a ".".
std::optional<QString> installedOwner(QString identifier, const Directory& directory)
{
    identifier = identifier.toLower();
    for (;;) {
        const auto found = directory.constFind(identifier);
        if (found != directory.constEnd())
            return found.value();
        const qsizetype dot = identifier.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0)
            return std::nullopt;
        identifier.truncate(dot);
    }
}

}  // namespace

QStringList applicationFolders(const QString& home)
{
    return {QStringLiteral("/Applications"), QStringLiteral("/Applications/Utilities"),
            QStringLiteral("/System/Applications"), home + QStringLiteral("/Applications")};
}

Directory read(const QStringList& folders)
{
    Directory directory;
    for (const QString& folder : folders)
        addFolder(folder, directory, true);
    return directory;
}

bool isReverseDNS(const QString& name)
{
    const QStringList parts = name.split(QLatin1Char('.'));
    if (parts.size() < 2 || name.contains(QLatin1Char(' ')))
        return false;
    for (const QString& part : parts) {
        if (part.isEmpty())
            return false;
    }
    const QString& first = parts.first();
    if (first != first.toLower())
        return false;
    return parts.size() >= 3 || commonTopLevelDomains().contains(first);
}

QString name(const QString& folder, const Directory& directory)
{
    if (!isReverseDNS(folder))
        return folder;
    const auto owner = installedOwner(folder, directory);
    if (owner)
        return *owner;
    return folder.section(QLatin1Char('.'), -1);
}

QString name(const QString& folder)
{
    static const Directory installed = read(applicationFolders(QDir::homePath()));
    return name(folder, installed);
}

}  // namespace AppNames
