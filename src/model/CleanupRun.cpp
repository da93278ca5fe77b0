#include "model/CleanupRun.h"

#include "actions/TargetCheck.h"
#include "model/Selection.h"

#include <QCoreApplication>

#include <algorithm>

namespace CleanupRun {

namespace {

// Whether the copy's every file is still on disk as the scan saw it.
bool isOnDisk(const CleanupItem& copy)
{
    const auto trash = copy.removal.as<Removal::Trash>();
    return trash && !trash->targets.isEmpty()
        && std::all_of(trash->targets.begin(), trash->targets.end(),
                       [](const FileTarget& target) { return TargetCheck::isAsScanned(target); });
}

// Why a duplicate copy must stay: no other copy of its group stays listed, or none of those is
// still on disk as the scan saw it (moved, deleted or rewritten outside the app). Read from the
// disk right before the copy goes. The texts keep the model's context, where they were made.
std::optional<QString> lastCopyReason(const CleanupItem& item, const QList<CleanupItem>& copies)
{
    if (Selection::wouldLoseLastCopy(item, copies))
        //: Why a duplicate was not removed: every other copy is gone or being removed
        return QCoreApplication::translate("AppModel", "It's the last copy of this file, so it was kept.");
    if (!item.duplicateGroup)
        return std::nullopt;
    for (const CleanupItem& other : copies) {
        if (other.id != item.id && other.duplicateGroup == item.duplicateGroup && isOnDisk(other))
            return std::nullopt;
    }
    //: Why a duplicate was not removed: the other copies were moved or changed outside Dustlark
    return QCoreApplication::translate("AppModel", "The other copies are gone, so this is the last one. It was kept.");
}

}  // namespace

bool run(const QList<CleanupItem>& items, QList<CleanupItem> copies, const RemovalEnvironment& environment,
         const RemoveItem& removeItem, const Steps& steps)
{
    for (const CleanupItem& item : items) {
        if (steps.stopRequested())
            return true;
        steps.starting(item);
        const std::optional<QString> kept = lastCopyReason(item, copies);
        const RemovalOutcome outcome = kept ? RemovalOutcome::failed(*kept) : removeItem(item, environment);
        if (outcome.succeeded())
            copies.removeIf([&](const CleanupItem& copy) { return copy.id == item.id; });
        steps.finished(item, outcome);
    }
    return false;
}

}  // namespace CleanupRun
