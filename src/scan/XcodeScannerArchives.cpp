// Which archives hold an app's only build: the newest of each app.
#include "scan/XcodeScanner.h"

#include "scan/PropertyList.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <map>

namespace {

const QString separator = QStringLiteral(" · ");

QStringList ownFacts(const XcodeScanner::Archive& archive)
{
    QStringList facts;
    if (archive.version && archive.build)
        //: Fact of an Xcode archive; %1 is the app's version, %2 its build number
        facts << QCoreApplication::translate("XcodeScanner", "Version %1 (%2)").arg(*archive.version, *archive.build);
    else if (archive.version)
        //: Fact of an Xcode archive; %1 is the app's version
        facts << QCoreApplication::translate("XcodeScanner", "Version %1").arg(*archive.version);
    const QString created = QLocale().toString(archive.created.toLocalTime(), QLocale::ShortFormat);
    //: Fact of an Xcode archive; %1 is the date and time it was made
    facts << QCoreApplication::translate("XcodeScanner", "archived %1").arg(created);
    if (archive.uploaded)
        //: Fact of an Xcode archive that was sent to App Store Connect
        facts << QCoreApplication::translate("XcodeScanner", "uploaded to Apple");
    return facts;
}

void labelNewest(CleanupItem& row, const XcodeScanner::Archive& archive)
{
    //: Badge of the newest Xcode archive of an app
    row.badge = QCoreApplication::translate("XcodeScanner", "Newest");
    //: Fact of the newest Xcode archive of an app
    row.detail = (ownFacts(archive) << QCoreApplication::translate("XcodeScanner", "newest archive of this app: its build and crash symbols exist only here"))
                     .join(separator);
}

void labelOlder(CleanupItem& row, const XcodeScanner::Archive& archive, bool newerOfSameVersion)
{
    //: Fact of an Xcode archive that is not the newest of its app
    QStringList facts = ownFacts(archive) << QCoreApplication::translate("XcodeScanner", "the build comes back from its git tag; only crash symbols for this build are lost");
    if (newerOfSameVersion)
        //: Fact of an Xcode archive when a later archive of the same app has the same version
        facts << QCoreApplication::translate("XcodeScanner", "a newer build of this version exists");
    row.detail = facts.join(separator);
    // Not Safe: the crash symbols of a build still in people's hands don't come back. But the
    // build itself can be made again from its tag, so it is a question, not a loss.
    row.safetyLevel = Safety::askAI;
}

// Whether an archive after `position` in the app's date order has the same version.
bool laterHasVersion(const std::vector<XcodeScanner::Archive>& archives, size_t position)
{
    const std::optional<QString>& version = archives[position].version;
    return version && std::any_of(archives.begin() + static_cast<std::ptrdiff_t>(position) + 1, archives.end(),
                                  [&](const XcodeScanner::Archive& later) { return later.version == version; });
}

}  // namespace

std::optional<XcodeScanner::Archive> XcodeScanner::readArchive(const QString& path, qsizetype index)
{
    const auto plist = PropertyList::read(path + QStringLiteral("/Info.plist"));
    if (!plist)
        return std::nullopt;
    const auto app = plist->string(QStringLiteral("Name"));
    const auto created = plist->date({QStringLiteral("CreationDate")});
    if (!app || !created)
        return std::nullopt;
    const QString properties = QStringLiteral("ApplicationProperties");
    return Archive{index, *app, plist->string({properties, QStringLiteral("CFBundleShortVersionString")}),
                   plist->string({properties, QStringLiteral("CFBundleVersion")}), *created,
                   plist->string({QStringLiteral("Distributions"), QStringLiteral("uploadEvent"), QStringLiteral("state")})
                       == QLatin1String("success")};
}

void XcodeScanner::labelArchives(QList<CleanupItem>& rows)
{
    std::map<QString, std::vector<Archive>> byApp;
    for (qsizetype index = 0; index < rows.size(); ++index) {
        const QStringList paths = rows[index].removal.paths();
        if (paths.isEmpty() || !paths.first().endsWith(QLatin1String(".xcarchive")))
            continue;
        if (auto archive = readArchive(paths.first(), index))
            byApp[archive->app].push_back(*archive);
    }
    for (auto& [app, archives] : byApp) {
        std::stable_sort(archives.begin(), archives.end(), [](const Archive& a, const Archive& b) { return a.created < b.created; });
        for (size_t position = 0; position + 1 < archives.size(); ++position)
            labelOlder(rows[archives[position].index], archives[position], laterHasVersion(archives, position));
        labelNewest(rows[archives.back().index], archives.back());
    }
}
