#pragma once

#include "actions/RemovalEnvironment.h"
#include "vocabulary/FileTarget.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <sys/stat.h>

// The checks a file target must pass right before it goes to the Trash, against what the scan
// saw. Thread-safe; runs on the removing worker thread. Anything that can't be read refuses.
namespace TargetCheck {

// Nothing when the target may be moved now; otherwise the reason sentence of the first check
// that fails, in this order: allowed place, still there, not a link, same object, same
// content, same tree, no link above it, no git lock, no running program, quiet for a day.
// `projectPath` is the item's project folder, needed when the target is `projectQuietForADay`.
[[nodiscard]] std::optional<QString> problem(const FileTarget& target, const RemovalEnvironment& environment,
                                             const std::optional<QString>& projectPath = std::nullopt);

// True when the object the scan saw is still at the target's path, unchanged: not a link, same
// device, inode and birth time, same content stamp and tree stamp where they were recorded.
// Anything that can't be read counts as not there.
[[nodiscard]] bool isAsScanned(const FileTarget& target, const CancellationToken* cancellation = nullptr);

// Whether `path` is somewhere removal may touch: strictly inside the home folder, an app bundle
// directly in "/Applications", or inside a scan folder on another disk.
[[nodiscard]] bool isInAllowedPlace(const QString& path, const RemovalEnvironment& environment);

// True when one of `programs` runs: an executable of that name, or one inside "<name>.app".
// Names compare without regard to case, as macOS names do.
[[nodiscard]] bool usedByRunningApp(const QStringList& programs, const QStringList& runningExecutables);

// Whether a regular file's status matches the content stamp the scan recorded.
[[nodiscard]] bool hasSameContent(const FileTarget::ContentStamp& stamp, const struct stat& info);

// The running-program check alone: the reason, or nothing.
[[nodiscard]] std::optional<QString> runningProblem(const FileTarget& target, const RemovalEnvironment& environment);

}  // namespace TargetCheck
