#include "scan/ScannerCatalog.h"

namespace ScannerCatalog {

const std::vector<std::shared_ptr<const Scanner>>& all()
{
    static const std::vector<std::shared_ptr<const Scanner>> scanners = {
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
