#pragma once

#include "machinery/CancellationToken.h"

#include <QByteArray>

#include <optional>

// The SHA-256 of an open file's content, for comparing a file with its copy. Thread-safe;
// keeps no state.
namespace FileDigest {

// Reads `fd` from its first byte to its end in page-aligned chunks (so a descriptor that must
// bypass the cache can) and returns the 32-byte digest. Absent when a read fails or `stop`
// (may be null) fired, since a digest of part of a file would pass for the whole.
[[nodiscard]] std::optional<QByteArray> sha256(int fd, const CancellationToken* stop = nullptr);

}  // namespace FileDigest
