#pragma once

#include "scan/Scanner.h"
#include "vocabulary/ListFacts.h"
#include "vocabulary/ScanFilter.h"

#include <map>

// A scanner's outputs with the rows a list shows of them, filtered on the scanner's own thread
// with the Safe List and scan folders the scan started with, so a list of tens of thousands of
// rows does not hold up the GUI thread. Those rows are reused only while the filter is still the
// same; a Safe List changed during the scan filters again, so nothing newly safe slips through.
// The rows come with their facts (total, sections), made on the same thread.
struct FilteredOutputs {
    ScanOutputs outputs;  // as the scanner returned them
    ScanFilter filter;
    QStringList scanFolders;
    std::map<CategoryID, ListFacts> shown;  // by `filter` and `scanFolders`

    // Filters every output now.
    static FilteredOutputs filterNow(ScanOutputs outputs, ScanFilter filter, QStringList scanFolders);
    // Filters none yet: each list is filtered when asked for.
    static FilteredOutputs unfiltered(ScanOutputs outputs, ScanFilter filter, QStringList scanFolders);

    // What a list shows of `category` under the filter and scan folders in force now, with its facts.
    [[nodiscard]] ListFacts shownFor(CategoryID category, const ScanFilter& current,
                                     const QStringList& currentFolders) const;
};
