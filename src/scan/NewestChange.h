#pragma once

#include "machinery/CancellationToken.h"

#include <QString>

#include <optional>

// The newest modification time inside a file or folder tree: the one question the temporary
// files and old downloads ask of a tree. Kept behind this one function so the walk under it can
// change without touching its callers. Thread-safe; every call is independent.
namespace NewestChange {

// Entries a walk looks at before it gives up: a tree this large is not worth judging.
inline constexpr qint64 entryLimit = 200'000;

// Seconds since 1970 of the newest modification time of `path` and everything below it, walked
// physically (no link followed) on its own volume. Absent when the walk gave up past `limit`
// entries, was cancelled (`cancellation` may be null), counted nothing, or found no time after
// 1970: callers then offer nothing.
[[nodiscard]] std::optional<qint64> of(const QString& path, const CancellationToken* cancellation = nullptr,
                                       qint64 limit = entryLimit);

}  // namespace NewestChange
