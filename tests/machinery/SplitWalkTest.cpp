#include "machinery/SplitWalk.h"
#include "support/TempTree.h"
#include "support/WalkRecorder.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <thread>
#include <unistd.h>

namespace {

QByteArray bytes(const QString& path)
{
    return QFile::encodeName(path);
}

// Options that split even a small tree, so that tests see every piece boundary.
SplitWalk::Options splitting()
{
    SplitWalk::Options options;
    options.splitAfter = 0;
    options.subtrees = 6;
    return options;
}

// Thread ids seen by the callbacks of every piece.
struct Threads {
    std::mutex mutex;
    std::set<std::thread::id> seen;
    void note()
    {
        const std::lock_guard lock(mutex);
        seen.insert(std::this_thread::get_id());
    }
};

// A tree with files between folders at every level, an empty folder, a folder the visitor
// skips, a link and a folder nested past the listed levels.
void buildMixedTree(const TempTree& tree)
{
    tree.file("top/first");
    for (const char* project : {"p1", "p2", "p3", "p4"}) {
        const QString base = QStringLiteral("top/") + QLatin1String(project);
        tree.file(base + "/readme");
        tree.file(base + "/src/a/b/c/deep");
        tree.file(base + "/src/main");
        tree.file(base + "/skipped/never");
        tree.dir(base + "/empty");
    }
    tree.file("top/middle");
    tree.symlink("top/link", tree.path("top/p1"));
    tree.file("top/q/r/s/t/bottom");
}

}  // namespace

TEST(SplitWalk, JoinedPiecesTellTheSameStoryAsOneWalkAndSmallTreesStayOnOneThread)
{
    TempTree tree;
    buildMixedTree(tree);
    const QByteArray top = bytes(tree.path("top"));
    Threads threads;
    const auto onEnter = [&](const TreeEntry& entry) {
        threads.note();
        if (entry.depth() == 2)  // slow subtrees, so that the second thread surely takes some
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return entry.name() == "skipped" ? TreeVisitor::Verdict::Skip : TreeVisitor::Verdict::Enter;
    };

    WalkRecorder single(top);
    single.onEnter = onEnter;
    const TreeWalker::Result one = TreeWalker({}).walk(top, single);
    threads.seen.clear();

    WalkRecorder split(top);
    split.onEnter = onEnter;
    const TreeWalker::Result shared = SplitWalk(splitting()).walk(top, split);

    EXPECT_EQ(split.lines, single.lines) << split.lines.join('\n').constData();
    EXPECT_EQ(shared.entries, one.entries);
    EXPECT_EQ(shared.end, TreeWalker::End::Finished);
    EXPECT_EQ(threads.seen.size(), 2u) << "a split walk works on two threads";

    threads.seen.clear();
    SplitWalk::Options small = splitting();
    small.splitAfter = 1000;
    WalkRecorder alone(top);
    alone.onEnter = onEnter;
    SplitWalk(small).walk(top, alone);
    EXPECT_EQ(threads.seen, std::set<std::thread::id>{std::this_thread::get_id()}) << "a small tree stays on one thread";
}

// Pieces deeper than the descriptor limit close and reopen their ancestors; a piece's own top
// folder is reopened relative to the folder the listing held open, never by path.
TEST(SplitWalk, PiecesDeeperThanTheDescriptorLimitAreWalkedWhole)
{
    TempTree tree;
    QString chain;
    for (int level = 0; level < 30; ++level)
        chain += QStringLiteral("/level%1").arg(level);
    for (const char* branch : {"top/a/x", "top/a/y", "top/b/x", "top/c"})
        tree.file(QLatin1String(branch) + chain + "/bottom");
    const QByteArray top = bytes(tree.path("top"));
    SplitWalk::Options options = splitting();
    options.walker.descriptorLimit = 3;

    WalkRecorder single(top);
    TreeWalker(options.walker).walk(top, single);
    WalkRecorder split(top);
    SplitWalk(options).walk(top, split);

    EXPECT_EQ(split.lines, single.lines);
    EXPECT_EQ(std::count_if(split.lines.begin(), split.lines.end(), [](const QByteArray& line) { return line.endsWith("/bottom"); }), 4);
}

TEST(SplitWalk, CancellationEndsEveryThreadAndReportsIt)
{
    TempTree tree;
    const QByteArray file = bytes(tree.file("file"));
    for (int folder = 0; folder < 40; ++folder) {
        const QByteArray path = bytes(tree.dir(QStringLiteral("top/d%1/inner").arg(folder)));
        for (int i = 0; i < 50; ++i)  // links: a new file's inode is most of its making
            ::link(file.constData(), path + "/f" + QByteArray::number(i));
    }
    CancellationToken cancellation;
    SplitWalk::Options options = splitting();
    options.walker.cancellation = &cancellation;
    WalkRecorder recorder(bytes(tree.path("top")));
    recorder.onEnter = [&](const TreeEntry& entry) {
        if (entry.name() == "inner")
            cancellation.cancel();
        return TreeVisitor::Verdict::Enter;
    };

    const TreeWalker::Result result = SplitWalk(options).walk(bytes(tree.path("top")), recorder);

    EXPECT_EQ(result.end, TreeWalker::End::Cancelled);
    const qsizetype inner = std::count_if(recorder.lines.begin(), recorder.lines.end(),
                                          [](const QByteArray& line) { return line.startsWith("enter ") && line.endsWith("/inner"); });
    EXPECT_LE(inner, 2) << "each thread finishes at most the subtree it had begun";
}

// Folders are swapped for links to a secret folder and back while split walks run, at random
// moments instead of at a chosen callback. No walk may report anything from the secret folder,
// and every folder entered is left. A few rounds by default; DUSTLARK_STRESS_RUNS (e.g. 2000)
// for a long run.
TEST(SplitWalk, FoldersSwappedForLinksDuringTheWalkAreNeverFollowed)
{
    TempTree tree;
    for (int folder = 0; folder < 8; ++folder) {
        for (int i = 0; i < 30; ++i)
            tree.file(QStringLiteral("top/d%1/sub/f%2").arg(folder).arg(i));
    }
    tree.file("secret/private");
    const int runs = std::max(20, qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS"));

    std::atomic<bool> done{false};
    std::thread swapper([&] {
        const QByteArray top = bytes(tree.path("top"));
        const QByteArray secret = bytes(tree.path("secret"));
        for (int round = 0; !done.load(); ++round) {
            const QByteArray folder = top + "/d" + QByteArray::number(round % 8);
            const QByteArray aside = folder + "-aside";
            if (::rename(folder.constData(), aside.constData()) != 0)
                continue;
            ::symlink(secret.constData(), folder.constData());
            std::this_thread::yield();
            ::unlink(folder.constData());
            ::rename(aside.constData(), folder.constData());
        }
    });
    for (int run = 0; run < runs; ++run) {
        WalkRecorder recorder(bytes(tree.path("top")));
        SplitWalk(splitting()).walk(bytes(tree.path("top")), recorder);
        const QByteArray all = recorder.lines.join('\n');
        ASSERT_FALSE(all.contains("private")) << "run " << run << '\n' << all.constData();
        const auto count = [&](const char* prefix) {
            return std::count_if(recorder.lines.begin(), recorder.lines.end(),
                                 [&](const QByteArray& line) { return line.startsWith(prefix); });
        };
        ASSERT_EQ(count("enter "), count("leave ")) << "run " << run << '\n' << all.constData();
    }
    done = true;
    swapper.join();
}
