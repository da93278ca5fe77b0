#pragma once

#include "vocabulary/FileTarget.h"

// The file targets this process has moved to the Trash, so that a later item sharing one of
// them (it went with an earlier item) reads as done rather than as vanished. Process-wide;
// thread-safe: the set is guarded by a mutex.
namespace MovedTargets {

void record(const FileTarget& target);
// True when an object with the target's path, device and inode went to the Trash earlier.
[[nodiscard]] bool contains(const FileTarget& target);

}  // namespace MovedTargets
