#pragma once

#include <QString>

#include <optional>
#include <sys/stat.h>

// The status of a path's own entry (lstat: a final symbolic link is not followed), in one place
// so every caller encodes the name the same way. Thread-safe.
namespace FileStatus {

// The entry's status; absent when it cannot be read (errno is left as the call set it).
[[nodiscard]] std::optional<struct stat> of(const QString& path);

// Whether anything, a dangling symbolic link included, stands at `path`.
[[nodiscard]] bool exists(const QString& path);
// Whether `path` is a real folder (not a link to one).
[[nodiscard]] bool isFolder(const QString& path);
// Whether `path` is a regular file (not a link to one).
[[nodiscard]] bool isRegularFile(const QString& path);

}  // namespace FileStatus
