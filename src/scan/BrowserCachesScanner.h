#pragma once

#include "scan/Scanner.h"

// Fills "Browser Caches" from the browsers' known cache folders; a browser's row is locked
// while that browser runs. A value type; scan() runs on a worker thread.
class BrowserCachesScanner : public Scanner {
public:
    QList<CategoryID> categories() const override { return {CategoryID::browserCaches}; }
    ScanOutputs scan(const ScanContext& context) const override;
};
