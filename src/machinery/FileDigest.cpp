#include "machinery/FileDigest.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <memory>
#include <openssl/evp.h>
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

}  // namespace

std::optional<qint64> feed(int fd, qint64 offset, qint64 end, EVP_MD_CTX* hash, unsigned char* buffer, size_t length,
                           const CancellationToken* stop)
{
    const qint64 start = offset;
    while (offset < end) {
        if (stop && stop->isCancelled())
            return std::nullopt;
        const size_t want = size_t(std::min<qint64>(end - offset, qint64(length)));
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
    }
    return offset - start;
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
