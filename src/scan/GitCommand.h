#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/ProcessRunner.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

// Runs git read-only on a working copy for the scanners: no file-system monitor is started, no
// hook runs, and GIT_OPTIONAL_LOCKS=0 keeps a status query from taking git's index lock while
// the person's own git works there. Stateless and thread-safe.
namespace GitCommand {

// The first installed git of `candidates` (normally ToolLocations::gitCandidates()); absent when
// there is none.
[[nodiscard]] std::optional<QString> locate(const QStringList& candidates);

// Runs `git` with the fixed safety arguments, then `options` (more "-c" settings), then
// "-C" `workingCopy` and `arguments`. Absent when git could not be started; a non-zero
// status or a time-out is returned for the caller to judge.
[[nodiscard]] std::optional<ProcessRunner::Output> run(const QString& git, const QString& workingCopy,
                                                       const QStringList& arguments,
                                                       std::chrono::milliseconds timeout,
                                                       const CancellationToken* cancellation,
                                                       const QStringList& options = {});

// The output of a run that ended normally with status 0 in time; absent otherwise.
[[nodiscard]] std::optional<QString> succeeded(const std::optional<ProcessRunner::Output>& output);

}  // namespace GitCommand
