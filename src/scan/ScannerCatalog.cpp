#include "scan/ScannerCatalog.h"

#include "scan/AgentsScanner.h"
#include "scan/AndroidScanner.h"
#include "scan/AppCachesScanner.h"
#include "scan/AppsScanner.h"
#include "scan/BrowserCachesScanner.h"
#include "scan/DevicesScanner.h"
#include "scan/DockerScanner.h"
#include "scan/EditorsScanner.h"
#include "scan/InstallersScanner.h"
#include "scan/KnownLocations.h"
#include "scan/LeftoversScanner.h"
#include "scan/LocationScanner.h"
#include "scan/OldDownloadsScanner.h"
#include "scan/ProjectScanner.h"
#include "scan/SimulatorScanner.h"
#include "scan/TemporaryScanner.h"
#include "scan/TrashScanner.h"
#include "scan/XcodeScanner.h"

namespace ScannerCatalog {

const std::vector<std::shared_ptr<const Scanner>>& all()
{
    static const std::vector<std::shared_ptr<const Scanner>> scanners = {
        std::make_shared<ProjectScanner>(),
        std::make_shared<XcodeScanner>(),
        std::make_shared<SimulatorScanner>(),
        std::make_shared<AndroidScanner>(),
        std::make_shared<LocationScanner>(CategoryID::packageCaches, KnownLocations::packageCaches()),
        std::make_shared<EditorsScanner>(),
        std::make_shared<DockerScanner>(),
        std::make_shared<LocationScanner>(CategoryID::aiModels, KnownLocations::aiModels()),
        std::make_shared<AgentsScanner>(),
        std::make_shared<AppsScanner>(),
        std::make_shared<LeftoversScanner>(),
        std::make_shared<AppCachesScanner>(),
        std::make_shared<LocationScanner>(CategoryID::logs, KnownLocations::logs()),
        std::make_shared<BrowserCachesScanner>(),
        std::make_shared<InstallersScanner>(),
        std::make_shared<OldDownloadsScanner>(),
        std::make_shared<TemporaryScanner>(),
        std::make_shared<DevicesScanner>(),
        std::make_shared<TrashScanner>(),
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
