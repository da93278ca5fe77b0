#include "scan/EditorsScanner.h"

#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "vocabulary/PathRules.h"

#include <algorithm>

namespace {

void dropPathsInside(QList<LocationScanner::Candidate>& candidates, const QStringList& folders)
{
    const auto isInside = [&](const QString& path) {
        return std::any_of(folders.begin(), folders.end(), [&](const QString& folder) { return PathRules::isAtOrBelow(path, folder); });
    };
    for (LocationScanner::Candidate& candidate : candidates)
        candidate.paths.removeIf(isInside);
    candidates.removeIf([](const LocationScanner::Candidate& candidate) { return candidate.paths.isEmpty(); });
}

}  // namespace

ScanOutputs EditorsScanner::scan(const ScanContext& context) const
{
    LocationScanner::Candidates found = LocationScanner::candidates(KnownLocations::editors(), context);
    dropPathsInside(found.list, AgentsScanner::uninstalledAppSupportFolders(context.home, m_environment));
    int unreadable = found.unreadableFolders;
    ScanOutput output;
    output.items = LocationScanner::measure(found.list, CategoryID::editors, context, &unreadable);
    RunningApps::from(context.runningPrograms->list()).lockRowsOfRunningOwners(output.items, context.home, &RunningApps::quitToCleanCaches);
    if (unreadable > 0)
        output.notes.append(LocationScanner::unreadableNote());
    return {{CategoryID::editors, output}};
}
