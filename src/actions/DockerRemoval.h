#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/DockerOperation.h"

// Has Docker remove one object for good, after checking that Docker still talks to the
// endpoint the scan saw and that the object is as the scan saw it. Blocks the worker thread
// while the tool runs.
namespace DockerRemoval {

// Removed by the tool, or failed with the reason sentence.
[[nodiscard]] RemovalOutcome remove(const DockerOperation& operation, const RemovalEnvironment& environment);

}  // namespace DockerRemoval
