#include "machinery/FileDigest.h"
#include "support/TempTree.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRandomGenerator>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <memory>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 mebibyte = 1'048'576;

struct HashFree {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};

// A file with data only where `stretches` say, holes between and, up to `size`, after them;
// and the bytes a full read of it returns.
struct SparseFile {
    QString path;
    QByteArray content;
    qint64 allocated = 0;
};

SparseFile sparseFile(const TempTree& tree, const QString& name, qint64 size,
                      const std::vector<std::pair<qint64, qint64>>& stretches)
{
    SparseFile made{tree.path(name), QByteArray(size, '\0'), 0};
    const int fd = ::open(QFile::encodeName(made.path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    EXPECT_GE(fd, 0);
    for (const auto& [offset, length] : stretches) {
        QByteArray data(length, Qt::Uninitialized);
        for (char& byte : data)
            byte = char(QRandomGenerator::global()->bounded(1, 256));
        EXPECT_EQ(::pwrite(fd, data.constData(), size_t(length), off_t(offset)), length);
        made.content.replace(offset, length, data);
    }
    EXPECT_EQ(::ftruncate(fd, off_t(size)), 0);
    struct stat info {};
    EXPECT_EQ(::fstat(fd, &info), 0);
    made.allocated = qint64(info.st_blocks) * 512;
    ::close(fd);
    return made;
}

struct Digested {
    std::optional<FileDigest::Fed> fed;
    QByteArray digest;
};

Digested digest(const QString& path, qint64 from, qint64 to)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    EXPECT_GE(fd, 0);
    const std::unique_ptr<EVP_MD_CTX, HashFree> hash(EVP_MD_CTX_new());
    EVP_DigestInit_ex(hash.get(), EVP_sha256(), nullptr);
    std::vector<unsigned char> buffer(256 * 1024);
    Digested result{FileDigest::feed(fd, from, to, hash.get(), buffer.data(), buffer.size()), {}};
    ::close(fd);
    unsigned char value[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_DigestFinal_ex(hash.get(), value, &length);
    result.digest = QByteArray(reinterpret_cast<const char*>(value), int(length));
    return result;
}

QByteArray sha256(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

// Holes read as zeros, so the digest is a full read's; but only the stretches with data are
// read, whatever part of the file is asked for: from the start, from inside a hole, up to a
// point inside a hole, and past trailing holes to the end.
TEST(FileDigest, ReadsOnlyTheDataOfAFileWithHolesAndDigestsItAsAFullRead)
{
    TempTree tree;
    const qint64 size = 8 * mebibyte + 17;
    const SparseFile file = sparseFile(tree, QStringLiteral("sparse"), size,
                                       {{0, 65'536}, {3 * mebibyte, 200'000}, {6 * mebibyte, 4'096}});
    if (file.allocated >= size)
        GTEST_SKIP() << "this file system stores holes as data";

    const Digested whole = digest(file.path, 0, std::numeric_limits<qint64>::max());
    ASSERT_TRUE(whole.fed);
    EXPECT_EQ(whole.digest, sha256(file.content));
    EXPECT_EQ(whole.fed->length, size);
    EXPECT_LE(whole.fed->read, file.allocated) << "a hole was read";
    EXPECT_GE(whole.fed->read, 65'536 + 200'000 + 4'096);

    const qint64 from = mebibyte + 5;  // inside the first hole
    const qint64 to = 5 * mebibyte;    // inside the second
    const Digested part = digest(file.path, from, to);
    ASSERT_TRUE(part.fed);
    EXPECT_EQ(part.digest, sha256(file.content.mid(from, to - from)));
    EXPECT_EQ(part.fed->length, to - from);
    EXPECT_LE(part.fed->read, 200'000 + 2 * 4'096);
}

TEST(FileDigest, AFileThatIsAllHolesIsNeverRead)
{
    TempTree tree;
    const SparseFile file = sparseFile(tree, QStringLiteral("holes"), 2 * mebibyte + 3, {});
    if (file.allocated != 0)
        GTEST_SKIP() << "this file system stores holes as data";
    const Digested whole = digest(file.path, 0, std::numeric_limits<qint64>::max());
    ASSERT_TRUE(whole.fed);
    EXPECT_EQ(whole.digest, sha256(file.content));
    EXPECT_EQ(whole.fed->length, 2 * mebibyte + 3);
    EXPECT_EQ(whole.fed->read, 0);
}

}  // namespace
