#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/ProcessRunner.h"

#include <QString>

#include <optional>

// Asks Finder to move an app bundle to the Trash when the folder needs an administrator: Finder
// asks for the password itself. Used only after the system trash refused for lack of write
// permission. Blocks the calling worker thread.
namespace FinderTrash {

// Runs `osascript` with a fixed script and the path as its one argument (no path text ever
// enters the script). Nothing on success, otherwise the reason sentence.
[[nodiscard]] std::optional<QString> moveToTrash(const QString& path, const QString& osascript,
                                                 const CancellationToken* cancellation = nullptr);

// The reason sentence for a failed run.
[[nodiscard]] QString failureReason(const ProcessRunner::Output& output);

}  // namespace FinderTrash
