// The analysis's folder tree over real fixture homes, held to du: every folder's bytes are its
// kept sub-folders' plus its own files' plus what was folded, to the byte, with hard links once,
// sparse files by their blocks, trees deeper than the walk keeps open, and the node and depth bounds.
#include "StorageFixture.h"

#include "storage/FolderTreeBuilder.h"
#include "storage/HomeTree.h"
#include "support/AllocatedBytes.h"
#include "support/DeepChain.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// Allocated bytes of a folder's own files and blocks, without its sub-folders.
qint64 duOwn(const QString& folder)
{
    return StorageFixture::du({folder}, {QStringLiteral("-S")});
}

// Checks the sum at every node; returns the path of the first folder where it fails ("" if none).
QString firstUnbalanced(const FolderNode& node, const QString& path = {})
{
    qint64 sum = node.ownBytes + node.foldedBytes;
    qint64 files = 0;
    for (const FolderNode& child : node.children) {
        sum += child.bytes;
        files += child.fileCount;
        if (QString failed = firstUnbalanced(child, path + '/' + child.name); !failed.isEmpty())
            return failed;
    }
    return sum == node.bytes && files <= node.fileCount && node.ownBytes >= 0 && node.foldedBytes >= 0
        ? QString() : path + QStringLiteral("/ (%1 != %2)").arg(sum).arg(node.bytes);
}

class FolderTreeTest : public ::testing::Test, public StorageFixture {
protected:
    QStringList homeRoots() const
    {
        QStringList paths = roots();
        paths.removeAll(applications);
        return paths;
    }

    const FolderNode& at(const StorageReport& report, const QString& relative) const
    {
        static const FolderNode missing;
        const FolderNode* node = report.tree.find(relative.split('/'));
        EXPECT_NE(node, nullptr) << relative.toStdString();
        return node ? *node : missing;
    }
};

}  // namespace

TEST_F(FolderTreeTest, EveryFolderAddsUpToTheByteAndMatchesDu)
{
    file("Documents/report.pdf", 120'000);
    file("Documents/letters/one.txt", 30'000);
    file("Documents/shared.bin", 250'000);
    tree.hardlink("home/code/shop/shared.bin", "home/Documents/shared.bin");
    tree.hardlink("home/code/again.bin", "home/Documents/shared.bin");
    file("code/shop/main.cpp", 9'000);
    tree.sparseFile("home/Movies/big.mov", 2'000'000'000);
    file("Movies/clip.mp4", 600'000);
    tree.file("Applications/Tool.app/Contents/MacOS/tool", 400'000);
    tree.hardlink("home/Downloads/tool-copy", "Applications/Tool.app/Contents/MacOS/tool");
    file("Downloads/setup.zip", 70'000);
    QString deep = QStringLiteral("deep");
    for (int level = 0; level < 40; ++level)
        deep += QStringLiteral("/d%1").arg(level);
    file(deep + "/bottom.bin", 80'000);
    file("Library/Caches/com.example/cache.db", 70'000);
    file("Library/Preferences/app.plist", 5'000);
    file("loose.iso", 90'000);

    const StorageReport report = analyzed();
    EXPECT_EQ(firstUnbalanced(report.tree), QString());
    EXPECT_EQ(report.tree.name, QDir(home).dirName());
    // The link into the applications folder counts there, the first root, and not in the home.
    EXPECT_EQ(report.tree.bytes, du(roots()) - du({applications}));
    EXPECT_EQ(report.tree.bytes, report.measured() - du({applications}));
    EXPECT_EQ(report.tree.ownBytes, du({home + "/loose.iso"})) << "a root that is a file is the home's own";
    EXPECT_EQ(at(report, "Downloads").bytes, duOwn(home + "/Downloads") - du({home + "/Downloads/tool-copy"}));
    EXPECT_EQ(at(report, "Downloads").fileCount, 1);

    // "Documents" sorts before "code", so the shared file is counted there and nowhere else.
    EXPECT_EQ(at(report, "Documents").bytes, du({home + "/Documents"}));
    EXPECT_EQ(at(report, "Documents").ownBytes, duOwn(home + "/Documents"));
    EXPECT_EQ(at(report, "code").bytes, du({home + "/Documents", home + "/code"}) - du({home + "/Documents"}));
    EXPECT_EQ(at(report, "code/shop").ownBytes, allocatedBytes(home + "/code/shop") + allocatedBytes(home + "/code/shop/main.cpp"));
    EXPECT_EQ(at(report, "code").ownBytes, allocatedBytes(home + "/code"));
    EXPECT_EQ(at(report, "code").fileCount, 1) << "only main.cpp: both links were counted in Documents";

    EXPECT_EQ(at(report, "Movies").bytes, du({home + "/Movies"})) << "a sparse file counts its blocks";
    EXPECT_EQ(at(report, "Movies").kind, StorageBucket::videos);
    EXPECT_EQ(at(report, "Library").bytes, du({home + "/Library/Caches", home + "/Library/Preferences"}))
        << "the Library's own blocks are not measured, only its entries";
    EXPECT_EQ(at(report, "Library/Caches").kind, StorageBucket::appData);
    QString level = QStringLiteral("deep");
    for (int depth = 0; depth <= 40; ++depth) {
        ASSERT_EQ(at(report, level).bytes, du({home + '/' + level})) << level.toStdString();
        level += QStringLiteral("/d%1").arg(depth);
    }
    EXPECT_EQ(at(report, deep).ownBytes, duOwn(home + '/' + deep));
}

TEST_F(FolderTreeTest, FoldersBelowTheShareAreFoldedWhole)
{
    file("Videos/film.mkv", 40'000'000);
    file("notes/tiny/a.txt", 100);
    file("notes/medium/b.txt", 100'000);

    const StorageReport report = analyzed();
    EXPECT_EQ(firstUnbalanced(report.tree), QString());
    const FolderNode& notes = at(report, "notes");
    ASSERT_EQ(notes.children.size(), 1u);
    EXPECT_EQ(notes.children.front().name, "medium");
    EXPECT_EQ(notes.foldedBytes, du({home + "/notes/tiny"}));
    EXPECT_LT(notes.foldedBytes * HomeTree::shareDivisor, report.tree.bytes);
}

TEST_F(FolderTreeTest, TheNodeBoundKeepsTheLargestFoldersAndEveryByte)
{
    // 300 folders in 10 groups, each a different size, so the walk folds while groups are open.
    for (int i = 0; i < 300; ++i)
        file(QStringLiteral("many/g%1/f%2/data.bin").arg(i % 10).arg(i, 3, 10, QLatin1Char('0')), (i + 1) * 8'192);
    file("many/g0/f000/deeper/x.bin", 4'096);

    constexpr qsizetype limit = 40;
    const StorageReport report = analyzed(true, limit);
    EXPECT_EQ(firstUnbalanced(report.tree), QString());
    EXPECT_LE(report.tree.nodeCount(), limit);
    EXPECT_GT(report.tree.nodeCount(), limit / 2) << "the bound folds the smallest, not nearly all";
    EXPECT_EQ(report.tree.bytes, du(homeRoots()));
    EXPECT_EQ(at(report, "many").bytes, du({home + "/many"}));
    // The largest folder of all survives; the smallest is folded into its group.
    EXPECT_EQ(at(report, "many/g9/f299").bytes, du({home + "/many/g9/f299"}));
    EXPECT_EQ(report.tree.find({"many", "g0", "f000"}), nullptr);

    const StorageReport unbounded = analyzed();
    EXPECT_EQ(unbounded.tree.bytes, report.tree.bytes);
    EXPECT_GT(unbounded.tree.nodeCount(), 5 * limit) << "only the bound folded so much";
}

// A chain past the tree's deepest level and the walk's open folders (the walk itself is held to
// far deeper chains in its own tests): every byte as du counts it, and the tree stops at its
// deepest level with the rest folded whole, so that what follows the tree down (drawing, JSON)
// never recurses that deep.
TEST_F(FolderTreeTest, DeepChainIsCountedToTheByteAndTheTreeStopsAtItsDeepestLevel)
{
    const DeepChain chain(tree.dir("home/chain"), "d", FolderTreeBuilder::deepestLevel + 50, [](int level) { return level % 5 * 3000; });
    file("Documents/report.pdf", 120'000);

    const StorageReport report = analyzed();
    EXPECT_EQ(report.measured(), du(roots()));
    EXPECT_EQ(report.tree.bytes, du(homeRoots()));
    EXPECT_EQ(firstUnbalanced(report.tree), QString());
    QString path = QStringLiteral("chain");
    const FolderNode* deepest = &at(report, path);
    qsizetype levels = 0;
    for (auto next = deepest->children.begin(); next != deepest->children.end(); next = deepest->children.begin()) {
        deepest = &*next;
        path += QStringLiteral("/d");
        ++levels;
    }
    EXPECT_EQ(levels, FolderTreeBuilder::deepestLevel);
    EXPECT_EQ(deepest->foldedBytes, du({home + '/' + path + "/d"}));
}
