#include "scan/LeftoversScanner.h"

#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "scan/MeasuredPaths.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>
#include <vector>

namespace {

const QString separator = QStringLiteral(" · ");

constexpr int measuringLimit = 4;

struct Leftover {
    QString identifier;
    QStringList paths;
};

QString hasFact(const QStringList& kinds)
{
    if (kinds.isEmpty()) {
        //: Fact in a leftovers row's detail line
        return QCoreApplication::translate("LeftoversScanner", "settings and caches only");
    }
    //: Fact in a leftovers row's detail line; %1 is a list like 'saved passwords, bookmarks'
    return QCoreApplication::translate("LeftoversScanner", "has %1").arg(kinds.join(QStringLiteral(", ")));
}

std::optional<CleanupItem> row(const Leftover& leftover, const ScanContext& context)
{
    const MeasuredPaths measured = MeasuredPaths::of(leftover.paths, context);
    const QDateTime changed = QDateTime::fromSecsSinceEpoch(measured.latestChange, QTimeZone::utc());
    if (measured.stopped || measured.targets.isEmpty()
        || changed > context.now.addDays(-LeftoversScanner::quietDays))
        return std::nullopt;
    CleanupItem item;
    item.id = QStringLiteral("leftovers:") + leftover.identifier;
    item.category = CategoryID::leftovers;
    item.title = LeftoversScanner::displayName(leftover.identifier, leftover.paths);
    if (measured.targets.size() > 1) {
        //: Badge of a leftovers row; %n is the number of places in ~/Library
        item.badge = QCoreApplication::translate("LeftoversScanner", "%n places", nullptr, int(measured.targets.size()));
    }
    item.userData = LeftoversScanner::userDataSigns(leftover.paths, &context.cancellation);
    //: Fact in a leftovers row's detail line; %1 is a relative date like "3 months ago"
    const QString changedFact = QCoreApplication::translate("LeftoversScanner", "last changed %1")
        .arg(RelativeDate::marker(changed));
    item.detail = changedFact + separator + hasFact(item.userData);
    item.size = measured.bytes;
    item.date = changed;
    item.removal = Removal::trash(measured.targets);
    return item;
}

std::vector<Leftover> leftoversOf(const LeftoversScanner::Groups& groups)
{
    std::vector<Leftover> leftovers;
    for (auto it = groups.begin(); it != groups.end(); ++it) {
        QStringList paths = it.value();
        paths.removeDuplicates();
        std::sort(paths.begin(), paths.end());
        leftovers.push_back({it.key(), paths});
    }
    return leftovers;
}

}  // namespace

ScanOutputs LeftoversScanner::scan(const ScanContext& context) const
{
    const QSet<QString> installed = installedIdentifiers(folders, context.home);
    const QSet<QString> groupsInUse = installedGroups(folders, context.home, codesign, context.cancellation);
    Groups groups = removed(withoutGroups(candidates(context.home, context.fullDiskAccess), groupsInUse), installed);
    const Groups flatpakGroups = flatpakLeftovers(context.home, flatpak);
    for (auto it = flatpakGroups.begin(); it != flatpakGroups.end(); ++it)
        groups[it.key()] += it.value();

    const auto rows = Concurrency::map(leftoversOf(groups), measuringLimit, context.cancellation,
                                       [&](const Leftover& leftover) { return row(leftover, context); });
    ScanOutput output;
    for (const auto& one : rows) {
        if (one)
            output.items.append(*one);
    }
    std::stable_sort(output.items.begin(), output.items.end(),
                     [](const CleanupItem& a, const CleanupItem& b) { return a.size > b.size; });
    return {{CategoryID::leftovers, output}};
}
