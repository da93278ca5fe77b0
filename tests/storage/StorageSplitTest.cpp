// A root walked in pieces on two threads must tell exactly what one walk tells: the pieces'
// folder tallies, usages and trees are joined after the walk.
#include "StorageFixture.h"

#include "storage/BucketRules.h"
#include "storage/StorageWalker.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

class StorageSplitTest : public ::testing::Test, public StorageFixture {
protected:
    // The analysis with every root walked on `threads` threads, its tree bounded to `treeNodes`.
    StorageReport analyzed(int threads, qsizetype treeNodes) const
    {
        const BucketRules rules(QFile::encodeName(home));
        const StorageWalker walker(rules, nullptr, nullptr, treeNodes, threads);
        const std::vector<QByteArray> roots = StorageAnalyzer::roots(request());
        std::vector<StoragePartial> partials;
        for (const QByteArray& root : roots)
            partials.push_back(walker.walk(root));
        FolderNode tree = HomeTree::assemble(QFile::encodeName(home), roots, partials, treeNodes);
        StorageReport report = StorageAnalyzer::merge(std::move(partials));
        report.tree = std::move(tree);
        report.date = {};
        return report;
    }

    // A dominant folder four levels deep, so that pieces begin and end inside shared folders,
    // with forced folders, a package, symbolic links and links within one folder.
    void makeHome() const
    {
        for (int project = 0; project < 6; ++project) {
            const QString top = QStringLiteral("Projects/p%1/").arg(project);
            for (int part = 0; part < 4; ++part) {
                const QString folder = top + QStringLiteral("src/m%1/").arg(part);
                file(folder + QStringLiteral("a.swift"), 3'000 * (part + 1));
                file(folder + QStringLiteral("deep/b.png"), 9'000 + 4'096 * project);
                file(folder + QStringLiteral("deep/deeper/c.txt"), 500 * (project + 1));
            }
            file(top + QStringLiteral("node_modules/pkg/index.js"), 20'000 + 4'096 * project);
            file(top + QStringLiteral("node_modules/pkg/lib/inner.js"), 6'000);
            file(top + QStringLiteral("Tool.app/Contents/MacOS/tool"), 40'000);
            file(top + QStringLiteral("readme.md"), 1'000);
        }
        tree.hardlink(QStringLiteral("home/Projects/p2/src/m1/deep/twin.png"), QStringLiteral("home/Projects/p2/src/m1/deep/b.png"));
        tree.symlink(QStringLiteral("home/Projects/p1/src/to-p3"), home + QStringLiteral("/Projects/p3"));
        file(QStringLiteral("Documents/notes.pdf"), 70'000);
        file(QStringLiteral("Library/Caches/app/cache.db"), 30'000);
    }
};

}  // namespace

TEST_F(StorageSplitTest, PiecesJoinToTheOneWalkResultAlsoWithLinksAcrossPieces)
{
    makeHome();
    for (const qsizetype treeNodes : {qsizetype(HomeTree::nodesKept), qsizetype(12)}) {
        const StorageReport alone = analyzed(1, treeNodes);
        EXPECT_EQ(alone.measured(), du(roots()));
        EXPECT_EQ(analyzed(2, treeNodes), alone) << "tree bound " << treeNodes;
    }

    // A file linked from two projects is counted in the first; every piece met one link.
    tree.hardlink(QStringLiteral("home/Projects/p4/src/m0/deep/linked.png"), QStringLiteral("home/Projects/p0/src/m3/deep/b.png"));
    tree.hardlink(QStringLiteral("home/Projects/p5/node_modules/pkg/linked.js"), QStringLiteral("home/Projects/p0/src/m3/deep/b.png"));
    const StorageReport alone = analyzed(1, HomeTree::nodesKept);
    EXPECT_EQ(alone.measured(), du(roots()));
    EXPECT_EQ(analyzed(2, HomeTree::nodesKept), alone);
}
