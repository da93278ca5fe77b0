#pragma once

#include "scan/Scanner.h"

#include <memory>
#include <vector>

// The fixed, ordered list of scanners a full scan runs. Scanners that are not built yet are
// simply absent; each lands here with its own change.
namespace ScannerCatalog {

const std::vector<std::shared_ptr<const Scanner>>& all();

// The catalogue's scanners that fill any of the given categories, in catalogue order.
std::vector<std::shared_ptr<const Scanner>> filling(const QList<CategoryID>& categories);

}  // namespace ScannerCatalog
