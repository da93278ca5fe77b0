#include "machinery/FileDigest.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FileDigest {

namespace {

constexpr size_t chunkLength = 1 << 20;
constexpr size_t pageAlignment = 16'384;  // Apple silicon's page; a multiple of everyone else's

struct HashFree {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

struct BufferFree {
    void operator()(unsigned char* buffer) const { std::free(buffer); }
};

// Hashes `count` zero bytes through `buffer`, which it clears.
bool feedZeros(qint64 count, EVP_MD_CTX* hash, unsigned char* buffer, size_t length)
{
    std::memset(buffer, 0, std::min<qint64>(count, qint64(length)));
    for (qint64 left = count; left > 0;) {
        const size_t part = size_t(std::min<qint64>(left, qint64(length)));
        if (EVP_DigestUpdate(hash, buffer, part) != 1)
            return false;
        left -= part;
    }
    return true;
}

// Where the data at or after `offset` begins and the hole after it begins. Where the file
// system can't say, everything counts as data; past the last data, the data begins at the end.
struct Stretch {
    qint64 data = 0;
    qint64 hole = std::numeric_limits<qint64>::max();
};

Stretch stretchAt(int fd, qint64 offset)
{
    const off_t data = ::lseek(fd, off_t(offset), SEEK_DATA);
    if (data < 0) {
        struct stat info {};
        if (errno == ENXIO && ::fstat(fd, &info) == 0)
            return {std::max<qint64>(offset, info.st_size), std::numeric_limits<qint64>::max()};
        return {offset, std::numeric_limits<qint64>::max()};
    }
    // A hole that answers at or before its data (the file changing under us) tells nothing.
    const off_t hole = ::lseek(fd, data, SEEK_HOLE);
    return {qint64(data), hole <= data ? std::numeric_limits<qint64>::max() : qint64(hole)};
}

}  // namespace

std::optional<Fed> feed(int fd, qint64 offset, qint64 end, EVP_MD_CTX* hash, unsigned char* buffer, size_t length,
                        const CancellationToken* stop)
{
    Fed fed;
    const qint64 start = offset;
    Stretch stretch = stretchAt(fd, offset);
    while (offset < end) {
        if (stop && stop->isCancelled())
            return std::nullopt;
        if (offset >= stretch.hole)
            stretch = stretchAt(fd, offset);
        if (offset < stretch.data) {
            const qint64 zeros = std::min(stretch.data, end) - offset;
            if (!feedZeros(zeros, hash, buffer, length))
                return std::nullopt;
            offset += zeros;
            continue;
        }
        const size_t want = size_t(std::min({end - offset, stretch.hole - offset, qint64(length)}));
        const ssize_t got = ::pread(fd, buffer, want, off_t(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        if (EVP_DigestUpdate(hash, buffer, size_t(got)) != 1)
            return std::nullopt;
        offset += got;
        fed.read += got;
    }
    fed.length = offset - start;
    return fed;
}

std::optional<QByteArray> sha256(int fd, const CancellationToken* stop)
{
    const std::unique_ptr<EVP_MD_CTX, HashFree> hash(EVP_MD_CTX_new());
    const std::unique_ptr<unsigned char, BufferFree> buffer(
        static_cast<unsigned char*>(std::aligned_alloc(pageAlignment, chunkLength)));
    if (!hash || !buffer || EVP_DigestInit_ex(hash.get(), EVP_sha256(), nullptr) != 1)
        return std::nullopt;
    const qint64 whole = std::numeric_limits<qint64>::max();
    if (!feed(fd, 0, whole, hash.get(), buffer.get(), chunkLength, stop))
        return std::nullopt;
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(hash.get(), digest, &length) != 1)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char*>(digest), int(length));
}

}  // namespace FileDigest
