#pragma once

#include "machinery/CancellationToken.h"

#include <QDateTime>
#include <QString>

#include <optional>

// Which Docker engine the docker tool talks to, decided the same way by the scan and by the
// removal that later compares the two. Blocks the calling worker thread while the tool runs.
namespace DockerEndpoint {

// Where the tool run by this process keeps its settings: DOCKER_CONFIG, else ".docker" in the
// home folder.
[[nodiscard]] QString configFolder();

// The endpoint of the tool's default context when DOCKER_HOST is not set.
inline constexpr char defaultHost[] = "unix:///var/run/docker.sock";

// The local endpoint (a "unix://" address) of the tool at `executable`: `hostVariable`
// (DOCKER_HOST) when set, without running the tool; the default context's when nothing chooses
// another (DOCKER_CONTEXT unset, no settings file in `configFolder`), also without running it;
// else the current context's endpoint as the tool names it. Absent when the endpoint is another
// computer or can't be read (failure, time-out).
[[nodiscard]] std::optional<QString> localHost(const QString& executable, const std::optional<QString>& hostVariable,
                                               const CancellationToken* cancellation = nullptr,
                                               const QString& configFolder = DockerEndpoint::configFolder());

// Whether an engine may answer at the local endpoint `host`: false when its socket does not
// exist, where the tool could only fail to connect.
[[nodiscard]] bool mayAnswer(const QString& host);

// DOCKER_HOST of this process when set and not empty.
[[nodiscard]] std::optional<QString> hostVariable();

// Docker's RFC 3339 time text ("2024-05-01T10:20:30.123456789Z") as a date; absent when
// unreadable.
[[nodiscard]] std::optional<QDateTime> parseTime(const QString& text);

}  // namespace DockerEndpoint
