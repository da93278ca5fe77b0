#include "scan/ScannerCatalog.h"

#include "scan/AgentsScanner.h"
#include "scan/AppCachesScanner.h"
#include "scan/BrowserCachesScanner.h"
#include "scan/EditorsScanner.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "scan/ProjectScanner.h"

namespace ScannerCatalog {

const std::vector<std::shared_ptr<const Scanner>>& all()
{
    static const std::vector<std::shared_ptr<const Scanner>> scanners = {
        std::make_shared<ProjectScanner>(),
        // XcodeScanner, SimulatorScanner, AndroidScanner
        std::make_shared<LocationScanner>(CategoryID::packageCaches, KnownLocations::packageCaches()),
        std::make_shared<EditorsScanner>(),
        // DockerScanner
        std::make_shared<LocationScanner>(CategoryID::aiModels, KnownLocations::aiModels()),
        std::make_shared<AgentsScanner>(),
        // AppsScanner, LeftoversScanner
        std::make_shared<AppCachesScanner>(),
        std::make_shared<LocationScanner>(CategoryID::logs, KnownLocations::logs()),
        std::make_shared<BrowserCachesScanner>(),
        // InstallersScanner, OldDownloadsScanner, TemporaryScanner,
        // DevicesScanner, TrashScanner
    };
    return scanners;
}

std::vector<std::shared_ptr<const Scanner>> filling(const QList<CategoryID>& categories)
{
    std::vector<std::shared_ptr<const Scanner>> result;
    for (const auto& scanner : all()) {
        const QList<CategoryID> own = scanner->categories();
        for (CategoryID category : categories) {
            if (own.contains(category)) {
                result.push_back(scanner);
                break;
            }
        }
    }
    return result;
}

}  // namespace ScannerCatalog
