#include "scan/AppsScanner.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "machinery/LastOpened.h"
#include "scan/MeasuredPaths.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

const QString separator = QStringLiteral(" · ");

// Reading signatures and measuring bundles is disk- and tool-bound; a few at once.
constexpr int parallelLimit = 4;

struct Found {
    AppsScanner::App app;
    AppsScanner::Identity identity;
};

QString detail(qint64 appBytes, qint64 dataBytes, qsizetype places)
{
    if (places == 0) {
        //: Uninstaller row detail of an app without data; %1 is the app's size
        return QCoreApplication::translate("AppsScanner", "App %1").arg(ByteCount::format(appBytes));
    }
    //: Uninstaller row detail; %1 is the app's size, %2 its data size, %n the number of places
    return QCoreApplication::translate("AppsScanner", "App %1 + app data %2 in %n places", nullptr, int(places))
        .arg(ByteCount::format(appBytes), ByteCount::format(dataBytes));
}

QString openedFact(const std::optional<QDateTime>& lastOpened)
{
    if (!lastOpened) {
        //: Fact in an uninstaller row's detail line
        return QCoreApplication::translate("AppsScanner", "never opened");
    }
    //: Fact in an uninstaller row's detail line; %1 is a relative date like "3 months ago"
    return QCoreApplication::translate("AppsScanner", "opened %1").arg(RelativeDate::marker(*lastOpened));
}

QString keptFact(const AppsScanner::KeptFolder& kept)
{
    //: Fact in an uninstaller row's detail line; first %1 is a folder name, %2 another app's name
    return QCoreApplication::translate("AppsScanner", "“%1” folder stays: it may belong to %2").arg(kept.folder, kept.owner);
}

std::optional<CleanupItem> row(const Found& found, const AppsScanner::Claims& claims, const QSet<QString>& running,
                               const ScanContext& context)
{
    const AppsScanner::Leftovers data =
        AppsScanner::leftovers(found.app, found.identity, context.home, context.fullDiskAccess, claims);
    MeasuredPaths bundle = MeasuredPaths::of({found.app.path}, context);
    const MeasuredPaths leftover = MeasuredPaths::of(data.paths, context);
    if (bundle.stopped || leftover.stopped || bundle.targets.isEmpty())
        return std::nullopt;
    CleanupItem item;
    item.id = found.app.path;
    item.category = CategoryID::apps;
    item.title = found.app.name;
    if (PathRules::isAtOrBelow(found.app.path, AppFolders::personal(context.home))) {
        //: Badge of an app installed in ~/Applications
        item.badge = QCoreApplication::translate("AppsScanner", "Your apps");
    }
    item.date = LastOpened::of(AppsScanner::usageProbe(found.app));
    QStringList facts = {detail(bundle.bytes, leftover.bytes, leftover.targets.size()), openedFact(item.date)};
    for (const AppsScanner::KeptFolder& kept : data.kept)
        facts.append(keptFact(kept));
    item.detail = facts.join(separator);
    item.size = bundle.bytes + leftover.bytes;
    // The remover checks again, at the moment it acts, that the app does not run.
    bundle.targets.first().usedWhileRunning = {found.app.path.section(QLatin1Char('/'), -1).chopped(4)};
    item.removal = Removal::trash(bundle.targets + leftover.targets);
    if (running.contains(found.app.bundleID.toLower())) {
        //: Why a running app can't be selected
        item.lockedReason = QCoreApplication::translate("AppsScanner", "Running. Quit it to remove it.");
    }
    return item;
}

bool isOffered(const AppsScanner::App& app, const AppFolders& folders, bool everything)
{
    if (app.bundleID.startsWith(QLatin1String("com.apple."), Qt::CaseInsensitive))
        return false;  // Apple's own apps come with the system
    return everything || !PathRules::isAtOrBelow(app.path, folders.systemApplications);
}

}  // namespace

ScanOutputs AppsScanner::scan(const ScanContext& context) const
{
    // Every installed app, the system's own included, claims its data; only some are offered.
    const QList<App> apps = installedApps(folders, context.home, true);
    const std::vector<App> work(apps.begin(), apps.end());
    const std::vector<Found> found = Concurrency::map(work, parallelLimit, context.cancellation, [&](const App& app) {
        context.progress->setCurrentFolder(app.path);
        return Found{app, {QStringList{app.bundleID} + nestedCode(app.path), appGroups(app.path, codesign)}};
    });
    QList<Identity> identities;
    for (const Found& one : found)
        identities.append(one.identity);
    const Claims claims = Claims::of(apps, identities);
    std::vector<Found> offered;
    std::copy_if(found.begin(), found.end(), std::back_inserter(offered),
                 [&](const Found& one) { return isOffered(one.app, folders, everything); });
    const QSet<QString> running = offered.empty() ? QSet<QString>{} : runningIdentifiers(runningExecutables());
    const auto rows = Concurrency::map(offered, parallelLimit, context.cancellation,
                                       [&](const Found& one) { return row(one, claims, running, context); });
    ScanOutput output;
    for (const auto& one : rows) {
        if (one)
            output.items.append(*one);
    }
    std::stable_sort(output.items.begin(), output.items.end(),
                     [](const CleanupItem& a, const CleanupItem& b) { return a.size > b.size; });
    if (!context.fullDiskAccess)
        output.notes.append(fullDiskAccessNote());
    return {{CategoryID::apps, output}};
}

QString AppsScanner::fullDiskAccessNote()
{
    //: Note above the Apps list
    return QCoreApplication::translate("AppsScanner",
        "Without Full Disk Access, the data of App Store apps (their containers) isn't listed as leftovers.");
}
