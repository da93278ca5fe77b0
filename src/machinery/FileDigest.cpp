#include "machinery/FileDigest.h"

#include <cerrno>
#include <cstdlib>
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

std::optional<QByteArray> sha256(int fd, const CancellationToken* stop)
{
    const std::unique_ptr<EVP_MD_CTX, HashFree> hash(EVP_MD_CTX_new());
    const std::unique_ptr<unsigned char, BufferFree> buffer(
        static_cast<unsigned char*>(std::aligned_alloc(pageAlignment, chunkLength)));
    if (!hash || !buffer || EVP_DigestInit_ex(hash.get(), EVP_sha256(), nullptr) != 1)
        return std::nullopt;
    for (off_t offset = 0;;) {
        if (stop && stop->isCancelled())
            return std::nullopt;
        const ssize_t got = ::pread(fd, buffer.get(), chunkLength, offset);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        if (EVP_DigestUpdate(hash.get(), buffer.get(), size_t(got)) != 1)
            return std::nullopt;
        offset += got;
    }
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(hash.get(), digest, &length) != 1)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char*>(digest), int(length));
}

}  // namespace FileDigest
