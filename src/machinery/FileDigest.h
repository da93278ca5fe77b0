#pragma once

#include "machinery/CancellationToken.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstddef>
#include <openssl/types.h>
#include <optional>

// Digests of open files' content: comparing a file with its copy, finding duplicates.
// Thread-safe; keeps no state.
namespace FileDigest {

// What `feed` took from a file: how far it got, and how much of that it read from the disk
// (holes are hashed as the zeros they read as, without reading them).
struct Fed {
    qint64 length = 0;
    qint64 read = 0;
};

// Feeds the bytes of `fd` from `offset` up to `end` (or the file's end, if sooner) into `hash`,
// through `buffer`, `length` bytes at a time, reading only the stretches that hold data where
// the file system can say which (SEEK_DATA): the digest is a full read's. Absent when a read
// fails or `stop` (may be null) fired.
[[nodiscard]] std::optional<Fed> feed(int fd, qint64 offset, qint64 end, EVP_MD_CTX* hash, unsigned char* buffer,
                                      size_t length, const CancellationToken* stop = nullptr);

// Reads `fd` from its first byte to its end in page-aligned chunks (so a descriptor that must
// bypass the cache can) and returns the 32-byte digest. Absent when a read fails or `stop`
// (may be null) fired, since a digest of part of a file would pass for the whole.
[[nodiscard]] std::optional<QByteArray> sha256(int fd, const CancellationToken* stop = nullptr);

}  // namespace FileDigest
