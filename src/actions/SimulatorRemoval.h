#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/Removal.h"

// Has Xcode's simulator tool delete a device or a runtime for good, after listing the devices
// again to refuse one that runs or was used since the scan. Blocks the worker thread while
// the tool runs.
namespace SimulatorRemoval {

[[nodiscard]] RemovalOutcome removeDevice(const Removal::SimulatorDevice& device, const RemovalEnvironment& environment);
[[nodiscard]] RemovalOutcome removeRuntime(const Removal::SimulatorRuntime& runtime, const RemovalEnvironment& environment);

}  // namespace SimulatorRemoval
