#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/DockerOperation.h"

#include <QDateTime>
#include <QString>

#include <optional>

// Has Docker remove one object for good, after checking that Docker still talks to the
// endpoint the scan saw and that the object is as the scan saw it. Blocks the worker thread
// while the tool runs.
namespace DockerRemoval {

// Removed by the tool, or failed with the reason sentence.
[[nodiscard]] RemovalOutcome remove(const DockerOperation& operation, const RemovalEnvironment& environment);

// The local Docker endpoint (a "unix://" address) the tool at `executable` uses now: DOCKER_HOST
// when set, else the current context's; absent when it is not local or can't be read.
[[nodiscard]] std::optional<QString> localHost(const QString& executable, const RemovalEnvironment& environment);

// Docker's time text ("2024-05-01T10:20:30.123456789Z") as a date; absent when unreadable.
[[nodiscard]] std::optional<QDateTime> parseTime(const QString& text);

}  // namespace DockerRemoval
