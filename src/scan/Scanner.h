#pragma once

#include "machinery/ScanContext.h"
#include "vocabulary/CategoryResult.h"

#include <QList>

#include <map>

using ScanOutputs = std::map<CategoryID, ScanOutput>;

// One scanner: fills the categories it names. scan() runs synchronously on a worker thread,
// adds to the context's progress as it goes, and returns early with what it has once the
// context's cancellation token fires.
class Scanner {
public:
    virtual ~Scanner() = default;
    virtual QList<CategoryID> categories() const = 0;
    virtual ScanOutputs scan(const ScanContext& context) const = 0;
};
