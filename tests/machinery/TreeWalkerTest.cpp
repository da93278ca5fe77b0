#include "machinery/FileKey.h"
#include "machinery/FileSizer.h"
#include "machinery/ScanProgress.h"
#include "machinery/SplitWalk.h"
#include "machinery/TreeWalker.h"
#include "support/DeepChain.h"
#include "support/LockedFolders.h"
#include "support/TempTree.h"
#include "support/WalkRecorder.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray bytes(const QString& path)
{
    return QFile::encodeName(path);
}

qsizetype countOf(const QByteArrayList& lines, const QByteArray& word)
{
    return std::count_if(lines.begin(), lines.end(), [&](const QByteArray& line) { return line.contains(word); });
}

// Linux lists a process's descriptors under /proc, macOS (which has no /proc) under /dev/fd.
// Every kind of entry counts: a descriptor of a folder reads as a link to a folder.
QStringList descriptorNames()
{
    const QString folder = QDir(QStringLiteral("/proc/self/fd")).exists() ? QStringLiteral("/proc/self/fd") : QStringLiteral("/dev/fd");
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
}

int openDescriptors()
{
    return static_cast<int>(descriptorNames().size());
}

using Recorder = WalkRecorder;

}  // namespace

TEST(TreeWalker, ReportsFoldersBeforeAndAfterTheirContentsAndSkipsWhatTheVisitorRefuses)
{
    TempTree tree;
    tree.file("top/a/one");
    tree.file("top/skipped/hidden");
    tree.symlink("top/link", tree.path("top/a"));
    Recorder recorder(bytes(tree.path("top")));
    recorder.onEnter = [](const TreeEntry& entry) {
        return entry.name() == "skipped" ? TreeVisitor::Verdict::Skip : TreeVisitor::Verdict::Enter;
    };

    const TreeWalker::Result result = TreeWalker({}).walk(bytes(tree.path("top")), recorder);

    QByteArrayList lines = recorder.lines;
    ASSERT_EQ(lines.size(), 7) << lines.join('\n').constData();
    EXPECT_EQ(lines.takeFirst(), "enter .");
    EXPECT_EQ(lines.takeLast(), "leave .");
    const qsizetype enterA = lines.indexOf("enter a");
    ASSERT_GE(enterA, 0);
    EXPECT_EQ(lines.mid(enterA, 3), (QByteArrayList{"enter a", "item a/one", "leave a"}));
    EXPECT_TRUE(lines.contains("enter skipped"));
    EXPECT_TRUE(lines.contains("link link")) << "a link to a folder is an item, never followed";
    EXPECT_EQ(result.end, TreeWalker::End::Finished);
    EXPECT_EQ(result.entries, 5);
}

TEST(TreeWalker, RootsThatAreNotFoldersOrDoNotExist)
{
    TempTree tree;
    tree.file("folder/inside");
    tree.symlink("link", tree.path("folder"));
    tree.file("plain");

    for (const char* name : {"link", "plain", "missing"}) {
        Recorder recorder(bytes(tree.path(name)));
        TreeWalker({}).walk(bytes(tree.path(name)), recorder);
        const QByteArray expected = name == QByteArray("link")    ? "link ."
                                    : name == QByteArray("plain") ? "item ."
                                                                  : "cannot-examine(No such file or directory) .";
        EXPECT_EQ(recorder.lines, QByteArrayList{expected}) << name;
    }
}

namespace {

// Sums what du sums, keeps the longest path, and notes the most descriptors open at any folder.
class DeepSizer : public TreeVisitor {
public:
    explicit DeepSizer(int before) : m_before(before) {}

    qint64 bytes = 0;
    qint64 entries = 0;
    qint64 items = 0;
    qint64 problems = 0;
    int mostOpen = 0;
    QByteArray longest;

    Verdict enterFolder(const TreeEntry& entry) override
    {
        noteOpen();
        return add(entry);
    }
    Verdict visitItem(const TreeEntry& entry) override
    {
        ++items;
        if (entry.pathBytes().size() > longest.size())
            longest = entry.pathBytes();
        return add(entry);
    }
    void leaveFolder(const TreeEntry&) override { noteOpen(); }  // the climb back reopens folders
    void problem(const TreeEntry&, TreeProblem, int) override { ++problems; }

private:
    Verdict add(const TreeEntry& entry)
    {
        bytes += qint64(entry.status().st_blocks) * 512;
        ++entries;
        return Verdict::Enter;
    }
    void noteOpen() { mostOpen = std::max(mostOpen, openDescriptors() - m_before); }

    int m_before;
};

}  // namespace

// A chain far deeper than the walk keeps open and than any path call takes, walked with few
// descriptors and with the default: every entry once with its whole path, the bytes du counts,
// within the descriptor bound on the way down and back up, nothing left open after. Climbing
// back opens each folder a few times, not once for every climb past it (which reopening from
// the chain's top did: quadratic in depth).
TEST(TreeWalker, ChainPastTheDescriptorAndPathLimitsIsMeasuredWholeWithinTheBound)
{
    TempTree tree;
    const QByteArray component(60, 'd');
    const int depth = 600;  // 600 x 61 bytes: past PATH_MAX nine times over
    const DeepChain chain(tree.dir("top"), component, depth, [](int level) { return level % 5 * 3000; });
    const QByteArray top = bytes(tree.path("top"));
    QProcess du;
    du.start(QStringLiteral("du"), {QStringLiteral("-s"), QStringLiteral("-B1"), tree.path("top")});
    ASSERT_TRUE(du.waitForFinished(60'000));
    const qint64 duBytes = du.readAllStandardOutput().split('\t').first().toLongLong();
    ASSERT_GT(duBytes, 0);
    chain.openings();
    const int openAtStart = openDescriptors();

    for (const int limit : {4, TreeWalker::Options().descriptorLimit}) {
        const int before = openDescriptors();
        DeepSizer sizer(before);
        TreeWalker::Options options;
        options.descriptorLimit = limit;
        const TreeWalker::Result result = TreeWalker(options).walk(top, sizer);

        EXPECT_EQ(result.end, TreeWalker::End::Finished) << limit;
        EXPECT_EQ(result.entries, 1 + 2 * depth + 1) << limit;
        EXPECT_EQ(sizer.entries, result.entries) << limit;
        EXPECT_EQ(sizer.items, depth + 1) << "every reopened folder is finished";
        EXPECT_EQ(sizer.problems, 0) << limit;
        EXPECT_EQ(sizer.bytes, duBytes) << limit;
        EXPECT_EQ(sizer.longest, top + '/' + (component + '/').repeated(depth) + "bottom") << "paths are whole beyond PATH_MAX";
        EXPECT_LE(sizer.mostOpen, limit + 1) << "the listing of /proc/self/fd takes one";
        EXPECT_EQ(openDescriptors(), before) << limit;
        if (const auto opened = chain.openings(); opened && limit == TreeWalker::Options().descriptorLimit) {
            EXPECT_LE(*opened, 5 * depth) << "openings of the chain's folders";
        }
    }
    EXPECT_EQ(FileSizer::measure(tree.path("top")).bytes, duBytes) << "split into pieces, as the scans measure";
    EXPECT_EQ(openDescriptors(), openAtStart);
}

namespace {

// Which folders of `levels` (by device and inode) this process holds open at this moment.
std::vector<bool> heldOpen(const std::vector<FileKey>& levels)
{
    std::vector<bool> open(levels.size(), false);
    for (const QString& name : descriptorNames()) {
        struct stat status {};
        if (::fstat(name.toInt(), &status) != 0)
            continue;
        const auto found = std::find(levels.begin(), levels.end(), FileKey::of(status));
        if (found != levels.end())
            open[size_t(found - levels.begin())] = true;
    }
    return open;
}

}  // namespace

// Deep in a chain, where the walk keeps some ancestors open and others closed for the limit,
// the shallowest of a run of closed ancestors is moved out of the tree (or moved, with a link
// to it left in its place). Climbing back, the folders below it still lead up to it by "..":
// the walk must see that they left the tree, give up what they had not given yet instead of
// walking it in its new place or through the link, and go on from the open ancestor above.
// Or the open folder below the run is moved into a new folder beside the run's last one: its
// ".." is no longer the folder to climb to, though it leads up the same way, and the run, still
// in place, is finished from above.
// (Open folders moved along are walked where they went: no walk by descriptors can tell.)
TEST(TreeWalker, ClimbingPastAnAncestorMovedOrSwappedForALinkNeverWalksItElsewhere)
{
    enum class Race { ancestorMoved, ancestorSwappedForALink, openFolderMoved };
    for (const Race race : {Race::ancestorMoved, Race::ancestorSwappedForALink, Race::openFolderMoved}) {
        TempTree tree;
        const int depth = 30;
        std::vector<QByteArray> folders;  // relative to top: "", "d", "d/d", ...
        std::vector<FileKey> keys;
        for (int level = 0; level <= depth; ++level) {
            folders.push_back(level == 0 ? QByteArray() : QByteArray("d/").repeated(level - 1) + "d");
            // A file made before the next level and one after, named by level: some come after
            // it in a listing whatever the order (creation, reverse, hashed).
            const QString folder = QStringLiteral("top/") + QString::fromLatin1(folders.back());
            tree.file(folder + QStringLiteral("/early%1").arg(level));
            if (level < depth)
                tree.dir(folder + QStringLiteral("/d"));
            tree.file(folder + QStringLiteral("/late%1").arg(level));
            struct stat status {};
            ASSERT_EQ(::lstat(QFile::encodeName(tree.path(folder)).constData(), &status), 0);
            keys.push_back(FileKey::of(status));
        }
        Recorder recorder(bytes(tree.path("top")));
        int first = -1;  // the closed run of ancestors moved with the first of them
        int last = -1;
        QList<QByteArrayList> unread(depth + 1);
        const int before = openDescriptors();
        recorder.onEnter = [&](const TreeEntry& entry) {
            if (first >= 0 || entry.depth() < 6)
                return TreeVisitor::Verdict::Enter;
            const std::vector<bool> open = heldOpen(keys);
            int high = entry.depth() - 2;  // the current folder's parent
            while (high > 0 && open[size_t(high)])
                --high;
            int low = high;
            while (low > 1 && !open[size_t(low - 1)])
                --low;
            if (high - low < 1 || open[size_t(low)] || !open[size_t(low - 1)])
                return TreeVisitor::Verdict::Enter;  // wants two closed ancestors below an open one
            QList<QByteArrayList> still(depth + 1);
            qsizetype inMoved = 0;
            for (int level = 0; level < entry.depth(); ++level) {
                for (const char* kind : {"early", "late"}) {
                    const QByteArray file = (level == 0 ? QByteArray() : folders[size_t(level)] + '/') + kind + QByteArray::number(level);
                    if (!recorder.lines.contains("item " + file))
                        still[level].append(file);
                }
                inMoved += level >= low && level <= high ? still[level].size() : 0;
            }
            if (inMoved == 0)
                return TreeVisitor::Verdict::Enter;  // the listing order gave those folders' files first
            first = race == Race::openFolderMoved ? high + 1 : low;
            last = high;
            unread = still;
            const QString moved = QStringLiteral("top/") + QString::fromLatin1(folders[size_t(first)]);
            const QString elsewhere = race == Race::openFolderMoved
                ? QStringLiteral("top/") + QString::fromLatin1(folders[size_t(high - 1)]) + QStringLiteral("/other")
                : QStringLiteral("elsewhere");
            tree.file(elsewhere + QStringLiteral("/decoy"));
            EXPECT_TRUE(QDir().rename(tree.path(moved), tree.path(elsewhere + QStringLiteral("/moved"))));
            if (race == Race::ancestorSwappedForALink)
                tree.symlink(moved, tree.path(elsewhere + QStringLiteral("/moved")));
            return TreeVisitor::Verdict::Enter;
        };
        TreeWalker::Options options;
        options.descriptorLimit = 4;
        const TreeWalker::Result result = TreeWalker(options).walk(bytes(tree.path("top")), recorder);

        const QByteArray all = recorder.lines.join('\n');
        ASSERT_GE(first, 0) << "no two closed ancestors below an open one had files still to give\n" << all.constData();
        EXPECT_EQ(result.end, TreeWalker::End::Finished);
        EXPECT_FALSE(all.contains("decoy")) << int(race);
        EXPECT_EQ(countOf(recorder.lines, "cannot-examine"), 0) << int(race) << '\n' << all.constData();
        for (int level = 0; level <= last; ++level) {
            const bool moved = level >= first;
            for (const QByteArray& file : unread[level])
                EXPECT_EQ(recorder.lines.contains("item " + file), !moved) << int(race) << ' ' << file.constData() << '\n' << all.constData();
            const bool reported = std::any_of(recorder.lines.begin(), recorder.lines.end(), [&](const QByteArray& line) {
                return line.startsWith("cannot-open(") && line.endsWith(") " + folders[size_t(level)]);
            });
            EXPECT_EQ(reported, moved && !unread[level].isEmpty()) << int(race) << " level " << level << '\n' << all.constData();
        }
        EXPECT_EQ(countOf(recorder.lines, "enter "), countOf(recorder.lines, "leave ")) << all.constData();
        EXPECT_EQ(recorder.lines.last(), "leave .");
        EXPECT_EQ(openDescriptors(), before) << "what a failed climb opened is closed";
    }
}

// Also through the split walk, where a subtree waits in the queue between its folder's status
// and its opening by another thread.
TEST(TreeWalker, FolderSwappedAfterItsStatusIsNeverEntered)
{
    for (const bool split : {false, true}) {
        TempTree tree;
        tree.file("top/victim/own");
        tree.file("top/twin/own");
        tree.file("elsewhere/secret");
        Recorder recorder(bytes(tree.path("top")));
        recorder.onEnter = [&](const TreeEntry& entry) {
            if (entry.name() == "victim") {  // a link to a folder outside takes its place
                QDir().rename(tree.path("top/victim"), tree.path("victim-moved"));
                tree.symlink("top/victim", tree.path("elsewhere"));
            } else if (entry.name() == "twin") {  // another real folder takes its place
                QDir().rename(tree.path("top/twin"), tree.path("twin-moved"));
                QDir().rename(tree.path("elsewhere"), tree.path("top/twin"));
            }
            return TreeVisitor::Verdict::Enter;
        };
        SplitWalk::Options splitting;
        splitting.splitAfter = 0;
        split ? (void)SplitWalk(splitting).walk(bytes(tree.path("top")), recorder)
              : (void)TreeWalker({}).walk(bytes(tree.path("top")), recorder);

        const QByteArray all = recorder.lines.join('\n');
        EXPECT_FALSE(all.contains("secret")) << split << all.constData();
        EXPECT_FALSE(all.contains("own")) << split << all.constData();
        const qsizetype victim = recorder.lines.indexOf("enter victim");
        ASSERT_GE(victim, 0);
        EXPECT_TRUE(recorder.lines.value(victim + 1).startsWith("cannot-open(")) << "ELOOP or ENOTDIR by system";
        EXPECT_TRUE(recorder.lines.contains("cannot-open(Stale file handle) twin")) << split << all.constData();
        EXPECT_TRUE(recorder.lines.contains("leave twin")) << "enter and leave stay balanced";
    }
}

TEST(TreeWalker, HardLinksAcrossFoldersAreReportedOnceWhenAsked)
{
    TempTree tree;
    tree.file("top/a/original", 10);
    tree.hardlink("top/b/second", "top/a/original");
    tree.hardlink("top/c/third", "top/a/original");
    tree.file("top/c/single", 10);

    Recorder every(bytes(tree.path("top")));
    TreeWalker({}).walk(bytes(tree.path("top")), every);
    EXPECT_EQ(countOf(every.lines, "item "), 4);

    Recorder once(bytes(tree.path("top")));
    TreeWalker::Options options;
    options.hardLinksOnce = true;
    const TreeWalker::Result result = TreeWalker(options).walk(bytes(tree.path("top")), once);
    EXPECT_EQ(countOf(once.lines, "item "), 2) << once.lines.join('\n').constData();
    EXPECT_EQ(result.entries, 8) << "repeated links are still counted as seen";
}

TEST(TreeWalker, UnreadableFolderIsReportedAndTheWalkGoesOn)
{
    TempTree tree;
    tree.file("top/a-locked/secret");
    tree.file("top/b-open/visible");
    const auto lines = withFoldersLocked(tree, {tree.path("top/a-locked")}, [&] {
        Recorder recorder(bytes(tree.path("top")));
        TreeWalker({}).walk(bytes(tree.path("top")), recorder);
        std::sort(recorder.lines.begin(), recorder.lines.end());
        return recorder.lines.join('|');
    });
    if (!lines)
        GTEST_SKIP() << cannotLockFolders;
    EXPECT_EQ(*lines, "cannot-open(Permission denied) a-locked|enter .|enter a-locked|enter b-open|"
                      "item b-open/visible|leave .|leave a-locked|leave b-open");
}

TEST(TreeWalker, NamesThatDoNotSurviveDecodingAreRecognised)
{
    TempTree tree;
    tree.file(QStringLiteral("top/caf\u00e9"));
    const QByteArray top = bytes(tree.path("top"));
    ::close(::open((top + "/bad\xff\xfe").constData(), O_WRONLY | O_CREAT, 0644));

    struct Names : TreeVisitor {
        QByteArrayList decoding, failing;
        Verdict visitItem(const TreeEntry& entry) override
        {
            (entry.nameDecodes() ? decoding : failing).append(QByteArray(entry.name().data(), entry.name().size()));
            return Verdict::Enter;
        }
    } names;
    TreeWalker({}).walk(top, names);
    EXPECT_EQ(names.decoding, QByteArrayList{QStringLiteral("caf\u00e9").toUtf8()});
    EXPECT_EQ(names.failing, QByteArrayList{"bad\xff\xfe"});
    ::unlink((top + "/bad\xff\xfe").constData());  // QDir cannot name it to clean up
}

TEST(TreeWalker, PublishesProgressInBatchesAndStopsOnCancellationOrRequest)
{
    TempTree tree;
    const QByteArray file = bytes(tree.file("file"));
    for (int folder = 0; folder < 10; ++folder) {
        const QByteArray path = bytes(tree.dir(QStringLiteral("top/d%1").arg(folder)));
        for (int i = 0; i < 500; ++i)  // links: a new file's inode is most of its making
            ::link(file.constData(), path + "/f" + QByteArray::number(i));
    }
    TreeVisitor nothing;
    ScanProgress progress;
    TreeWalker::Options options;
    options.progress = &progress;
    EXPECT_EQ(TreeWalker(options).walk(bytes(tree.path("top")), nothing).entries, 5011);
    EXPECT_EQ(progress.snapshot().entries, 5011);

    // Cancelled while the walk is in one folder: that folder is finished up to the next batch,
    // and no further folder is read.
    progress.reset();
    CancellationToken cancellation;
    options.cancellation = &cancellation;
    WalkRecorder recorder(bytes(tree.path("top")));
    recorder.onEnter = [&](const TreeEntry& entry) {
        if (entry.depth() == 1 && recorder.lines.size() > 500)
            cancellation.cancel();
        return TreeVisitor::Verdict::Enter;
    };
    const TreeWalker::Result cancelled = TreeWalker(options).walk(bytes(tree.path("top")), recorder);
    EXPECT_EQ(cancelled.end, TreeWalker::End::Cancelled);
    ASSERT_TRUE(recorder.lines.last().startsWith("enter d")) << "the folder entered as the stop came is not read";
    EXPECT_EQ(std::count_if(recorder.lines.begin(), recorder.lines.end(), [](const QByteArray& line) { return line.startsWith("item "); }),
              500) << "the one folder read before";
    EXPECT_EQ(progress.snapshot().entries, cancelled.entries);

    struct StopAtThird : TreeVisitor {
        int items = 0;
        Verdict visitItem(const TreeEntry&) override { return ++items == 3 ? Verdict::Stop : Verdict::Enter; }
    } stopper;
    EXPECT_EQ(TreeWalker({}).walk(bytes(tree.path("top")), stopper).end, TreeWalker::End::Stopped);
    EXPECT_EQ(stopper.items, 3);
}
