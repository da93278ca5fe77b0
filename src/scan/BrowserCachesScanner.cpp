#include "scan/BrowserCachesScanner.h"

#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "scan/RunningApps.h"

ScanOutputs BrowserCachesScanner::scan(const ScanContext& context) const
{
    const LocationScanner::Candidates found = LocationScanner::candidates(KnownLocations::browsers(), context);
    int unreadable = found.unreadableFolders;
    ScanOutput output;
    output.items = LocationScanner::measure(found.list, CategoryID::browserCaches, context, &unreadable);
    RunningApps::from(context.runningPrograms->list()).lockRowsOfRunningOwners(output.items, context.home, &RunningApps::quitToCleanCache);
    if (unreadable > 0)
        output.notes.append(LocationScanner::unreadableNote());
    return {{CategoryID::browserCaches, output}};
}
