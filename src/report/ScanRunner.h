#pragma once

#include "scan/Scanner.h"
#include "vocabulary/CategoryResult.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

// Runs scanners side by side, one thread each, for the report tool; each finished scanner's
// output is handed to `onOutput` on the thread that ran it.
namespace ScanRunner {

using OutputHandler = std::function<void(const ScanOutputs&)>;

void runAll(const std::vector<std::shared_ptr<const Scanner>>& scanners, const ScanContext& context,
            const OutputHandler& onOutput);

}  // namespace ScanRunner
