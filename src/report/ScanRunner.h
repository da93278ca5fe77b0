#pragma once

#include "model/CategoryResult.h"
#include "model/ScanFilter.h"
#include "scan/Scanner.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

// Runs scanners side by side, one thread each, and folds their outputs through the scan
// filter. The report tool uses it directly; each finished scanner's output is handed to
// `onOutput` on the thread that ran it.
namespace ScanRunner {

using OutputHandler = std::function<void(const ScanOutputs&)>;

void runAll(const std::vector<std::shared_ptr<const Scanner>>& scanners, const ScanContext& context,
            const OutputHandler& onOutput);

// Keeps the output's items that the filter does not drop, in order.
ScanOutput filtered(const ScanOutput& output, const ScanFilter& filter);

}  // namespace ScanRunner
