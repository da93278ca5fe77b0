// `dustlark-cli storage` over a fixture home, held to du.
#include "storage/StorageFixture.h"
#include "support/ProgramRun.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// Many small files quickly: one open and write each, no Qt file object.
void smallFiles(const QString& folder, int count, qint64 size)
{
    QDir().mkpath(folder);
    const QByteArray content(size, 'x');
    for (int i = 0; i < count; ++i) {
        const int descriptor = ::open(QFile::encodeName(folder + QStringLiteral("/m%1.js").arg(i)).constData(),
                                      O_WRONLY | O_CREAT | O_TRUNC, 0644);
        ASSERT_EQ(::write(descriptor, content.constData(), size), size);
        ::close(descriptor);
    }
}

// The first folder of the printed tree whose children, own files and folded folders do not add
// up to its bytes ("" when every one does).
QString firstUnbalanced(const QJsonObject& node, const QString& path)
{
    qint64 sum = node[QStringLiteral("ownBytes")].toInteger() + node[QStringLiteral("foldedBytes")].toInteger();
    for (const QJsonValue& child : node[QStringLiteral("children")].toArray()) {
        sum += child[QStringLiteral("bytes")].toInteger();
        const QString failed = firstUnbalanced(child.toObject(), path + '/' + child[QStringLiteral("name")].toString());
        if (!failed.isEmpty())
            return failed;
    }
    return sum == node[QStringLiteral("bytes")].toInteger() ? QString() : path;
}

}  // namespace

// One analysis printed whole: the buckets add up to du of the walked roots, the folder of many
// small files is listed once with its counts, and the tree holds the home, every folder adding up
// to the byte. How the analysis counts is held to du in its own tests; this is what the tool prints.
TEST(StorageCli, TheJsonReportAddsUpAndListsTheSmallFilesFolderOnce)
{
    TempTree tree;
    const QString home = tree.dir(QStringLiteral("home"));
    smallFiles(home + "/code/app/node_modules/big", 1'000, 100'000);
    smallFiles(home + "/code/app/node_modules/little", 20, 30'000);
    tree.file(QStringLiteral("home/Documents/Thesis/draft.pdf"), 2'000'000);
    tree.hardlink(QStringLiteral("home/Music/draft.pdf"), QStringLiteral("home/Documents/Thesis/draft.pdf"));
    tree.sparseFile(QStringLiteral("home/Movies/empty.mov"), 3'000'000'000);
    tree.file(QStringLiteral("home/Library/Caches/c.db"), 50'000);
    tree.file(QStringLiteral("home/notes.txt"), 7'000);

    const ProgramRun run = ProgramRun::run(QStringLiteral(DUSTLARK_CLI), {"storage", "--home", home, "--json"});
    ASSERT_EQ(run.exitCode, 0) << run.standardError.constData();
    const QJsonObject report = QJsonDocument::fromJson(run.standardOutput).object();
    EXPECT_EQ(report[QStringLiteral("version")].toInt(), 1);
    qint64 sum = 0;
    qint64 previous = std::numeric_limits<qint64>::max();
    for (const QJsonValue& bucket : report[QStringLiteral("buckets")].toArray()) {
        const qint64 bytes = bucket[QStringLiteral("bytes")].toInteger();
        EXPECT_LE(bytes, previous) << "largest first";
        previous = bytes;
        sum += bytes;
    }
    const QStringList homeRoots = {home + "/Documents", home + "/Library/Caches", home + "/Movies", home + "/Music",
                                   home + "/code", home + "/notes.txt"};
    const qint64 applications = QFileInfo::exists(QStringLiteral("/Applications")) ? StorageFixture::du({QStringLiteral("/Applications")}) : 0;
    EXPECT_EQ(sum, StorageFixture::du(homeRoots) + applications);
    EXPECT_EQ(report[QStringLiteral("measured")].toInteger(), sum);

    const QJsonArray large = report[QStringLiteral("largeFolders")].toArray();
    ASSERT_EQ(large.size(), 1) << "node_modules only holds the listed folder's bytes once";
    EXPECT_EQ(large[0][QStringLiteral("path")].toString(), home + "/code/app/node_modules/big");
    EXPECT_EQ(large[0][QStringLiteral("fileCount")].toInteger(), 1'000);
    EXPECT_EQ(large[0][QStringLiteral("smallBytes")].toInteger(), 1'000 * StorageFixture::du({home + "/code/app/node_modules/big/m0.js"}));
    EXPECT_EQ(large[0][QStringLiteral("kind")].toString(), "developer");

    const QJsonObject top = report[QStringLiteral("tree")].toObject();
    EXPECT_EQ(top[QStringLiteral("name")].toString(), "home");
    EXPECT_EQ(firstUnbalanced(top, QStringLiteral("~")), QString());
    EXPECT_EQ(top[QStringLiteral("bytes")].toInteger(), StorageFixture::du(homeRoots));
    EXPECT_EQ(top[QStringLiteral("ownBytes")].toInteger(), StorageFixture::du({home + "/notes.txt"}));
    EXPECT_EQ(top[QStringLiteral("fileCount")].toInteger(), 1'000 + 20 + 1 + 1 + 1 + 1) << "the hard link once";
    const QJsonArray children = top[QStringLiteral("children")].toArray();
    ASSERT_FALSE(children.isEmpty());
    EXPECT_EQ(children[0][QStringLiteral("name")].toString(), "code") << "largest first";
    EXPECT_EQ(children[0][QStringLiteral("kind")].toString(), "developer");
}
