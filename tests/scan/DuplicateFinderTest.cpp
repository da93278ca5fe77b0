#include "format/RelativeDate.h"
#include "platform/Platform.h"
#include "scan/DuplicateFinder.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using DuplicateFinder::File;

constexpr qint64 head = 65'536;

// `size` bytes that differ from every other call's content within their first bytes.
QByteArray randomContent(qint64 size)
{
    QByteArray content(size, Qt::Uninitialized);
    QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(content.data()), size / 4);
    for (qint64 i = size / 4 * 4; i < size; ++i)
        content[i] = char(QRandomGenerator::global()->bounded(256));
    return content;
}

// Copies with `cp --reflink=always`: false where the file system cannot share blocks.
bool reflink(const QString& from, const QString& to)
{
    QProcess cp;
    cp.start(QStringLiteral("cp"), {QStringLiteral("--reflink=always"), from, to});
    return cp.waitForFinished() && cp.exitStatus() == QProcess::NormalExit && cp.exitCode() == 0;
}

QString sha256(const QByteArray& content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
}

class DuplicateFinderTest : public ::testing::Test {
protected:
    DuplicateFinderTest() { context.home = tree.root(); }

    // The candidate as the walk reports it.
    File candidate(const QString& path) const
    {
        struct stat info {};
        EXPECT_EQ(::lstat(QFile::encodeName(path).constData(), &info), 0) << qPrintable(path);
        File file;
        file.path = path;
        file.size = info.st_size;
        file.allocated = qint64(info.st_blocks) * 512;
        file.device = qint32(info.st_dev);
        file.inode = info.st_ino;
        file.stamp = FileTarget::ContentStamp::of(info);
        return file;
    }

    QList<File> candidates(const QStringList& relativePaths) const
    {
        QList<File> files;
        for (const QString& relative : relativePaths)
            files.append(candidate(tree.path(relative)));
        return files;
    }

    DuplicateFinder::Outcome find(const QStringList& relativePaths) const
    {
        return DuplicateFinder::find(candidates(relativePaths), context);
    }

    TempTree tree;
    ScanContext context;
};

TEST_F(DuplicateFinderTest, HardLinksToOneFileAreNoDuplicates)
{
    tree.file("a", 2'000'000);
    tree.hardlink("b", "a");
    const auto outcome = find({"a", "b"});
    EXPECT_TRUE(outcome.items.isEmpty());
    EXPECT_EQ(outcome.stats.filesRead, 0) << "one stored file has nothing to compare with";
}

// The first pass reads 64 KiB: files of exactly that size are compared whole by it, and a
// last byte beyond it is found only by reading the files whole. Up to two heads' length the
// rest of a file is no longer than its tail: no tail pass.
TEST_F(DuplicateFinderTest, ReadPassesTurnAtOneAndTwoHeadLengths)
{
    const QByteArray content = randomContent(head);
    tree.file("a", content);
    tree.file("b", content);
    const auto same = find({"a", "b"});
    ASSERT_EQ(same.items.size(), 2);
    EXPECT_EQ(same.items[1].duplicateGroup, sha256(content));
    EXPECT_EQ(same.stats.filesReadWhole, 0);
    EXPECT_EQ(same.stats.bytesRead, 2 * head);
    EXPECT_EQ(context.progress->snapshot().entries, 2);

    QByteArray longer = randomContent(head + 1);
    tree.file("c", longer);
    longer[head] = char(longer[head] ^ 1);
    tree.file("d", longer);
    const auto differ = find({"c", "d"});
    EXPECT_TRUE(differ.items.isEmpty());
    EXPECT_EQ(differ.stats.filesReadWhole, 2);

    const QByteArray twoHeads = randomContent(2 * head);
    tree.file("e", twoHeads);
    tree.file("f", twoHeads);
    const auto shortPair = find({"e", "f"});
    EXPECT_EQ(shortPair.items.size(), 2);
    EXPECT_EQ(shortPair.stats.filesReadTail, 0);
    EXPECT_EQ(shortPair.stats.bytesRead, 2 * 2 * head);
}

// Same size everywhere: "same" is a true copy of "original", "middle" shares their first and
// last 64 KiB but differs between, "tail" differs in its last bytes, "other" differs at once.
// Only files that share head and tail are read whole, and no byte of them twice.
TEST_F(DuplicateFinderTest, OnlyFilesSharingHeadAndTailAreReadWhole)
{
    constexpr qint64 size = 3 * 1'048'576 + 17;  // several chunks and a ragged end
    const QByteArray content = randomContent(size);
    tree.file("original", content);
    tree.file("same", content);
    QByteArray changed = content;
    changed[size / 2] = char(changed[size / 2] ^ 0x40);
    tree.file("middle", changed);
    changed = content;
    changed[size - 2] = char(changed[size - 2] ^ 0x40);
    tree.file("tail", changed);
    tree.file("other", randomContent(size));

    const auto outcome = find({"original", "middle", "tail", "other", "same"});
    EXPECT_EQ(titlesOf(outcome.items), QStringList({"~/original", "~/same"}));
    EXPECT_EQ(outcome.stats.filesRead, 5);
    EXPECT_EQ(outcome.stats.filesReadTail, 4);
    EXPECT_EQ(outcome.stats.filesReadWhole, 3) << "the tail pass spares \"tail\", never \"middle\"";
    EXPECT_EQ(outcome.stats.bytesRead, 5 * head + 4 * head + 3 * (size - head));
}

TEST_F(DuplicateFinderTest, ThreeCopiesMakeOneGroupOldestFirst)
{
    const QByteArray content = randomContent(1'500'000);
    for (const char* name : {"Documents/first.bin", "Desktop/second.bin", "third.bin"}) {
        tree.file(name, content);
        QThread::msleep(20);  // birth times come from a coarse clock
    }
    tree.setTimes("Documents/first.bin", 1'600'000'000);
    tree.setTimes("Desktop/second.bin", 1'650'000'000);
    tree.setTimes("third.bin", 1'700'000'000);
    const QStringList files = {"third.bin", "Documents/first.bin", "Desktop/second.bin"};
    const auto outcome = find(files);

    ASSERT_EQ(titlesOf(outcome.items),
              QStringList({"~/Documents/first.bin", "~/Desktop/second.bin", "~/third.bin"}));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(outcome.items[i].duplicateGroup, sha256(content));
        EXPECT_EQ(outcome.items[i].isOldestCopy, i == 0);
        EXPECT_EQ(outcome.items[i].safety(tree.root()), Safety::askAI);
    }
    const File expected = candidate(tree.path("Documents/first.bin"));
    EXPECT_EQ(outcome.items[0].size, expected.allocated);
    const auto* trash = outcome.items[0].removal.as<Removal::Trash>();
    ASSERT_TRUE(trash && trash->targets.size() == 1);
    EXPECT_EQ(trash->targets[0].inode, expected.inode);
    EXPECT_EQ(trash->targets[0].content, expected.stamp);
}

TEST_F(DuplicateFinderTest, CreationTimeOutranksModificationTime)
{
    const QByteArray content = randomContent(1'200'000);
    tree.file("original", content);
    QThread::msleep(20);
    tree.file("copy", content);
    if (!Platform::birthTime(tree.path("original")) || !Platform::birthTime(tree.path("copy")))
        GTEST_SKIP() << "this file system records no creation times";
    tree.setTimes("original", 1'700'000'000);  // edited after the copy was made
    tree.setTimes("copy", 1'600'000'000);
    const auto items = find({"copy", "original"}).items;
    ASSERT_EQ(titlesOf(items), QStringList({"~/original", "~/copy"}));
    EXPECT_EQ(RelativeDate::expand(items[0].detail), "created just now");
}

TEST_F(DuplicateFinderTest, ACopyThatIsGoneOrReplacedDropsOutAndALoneSurvivorIsNoGroup)
{
    const QByteArray content = randomContent(1'100'000);
    for (const char* name : {"a", "b", "c", "d"})
        tree.file(name, content);
    QList<File> files = candidates({"a", "b", "c", "d"});
    QFile::remove(tree.path("c"));
    QFile::remove(tree.path("d"));
    tree.file("d", content);  // same content, but not the file the walk saw

    EXPECT_EQ(titlesOf(DuplicateFinder::items(files, context)), QStringList({"~/a", "~/b"}));
    QFile::remove(tree.path("b"));
    EXPECT_TRUE(DuplicateFinder::items(files, context).isEmpty());
}

TEST_F(DuplicateFinderTest, AnUnreadableCopyDropsOut)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root reads files without read permission";
    const QByteArray content = randomContent(1'100'000);
    for (const char* name : {"a", "b", "c"})
        tree.file(name, content);
    QFile::setPermissions(tree.path("b"), QFileDevice::WriteOwner);
    EXPECT_EQ(titlesOf(find({"a", "b", "c"}).items), QStringList({"~/a", "~/c"}));
}

TEST_F(DuplicateFinderTest, ACancelledScanReadsNothing)
{
    const QByteArray content = randomContent(1'100'000);
    tree.file("a", content);
    tree.file("b", content);
    context.cancellation.cancel();
    const auto outcome = find({"a", "b"});
    EXPECT_TRUE(outcome.items.isEmpty());
    EXPECT_EQ(outcome.stats.bytesRead, 0);
}

TEST_F(DuplicateFinderTest, GroupsComeLargestFirstAndPathsOutsideHomeStayWhole)
{
    tree.file("small-1", 1'000'000, 's');
    tree.file("small-2", 1'000'000, 's');
    tree.file("large-1", 4'000'000, 'l');
    tree.file("large-2", 4'000'000, 'l');
    context.home = tree.path("elsewhere");
    const auto items = find({"small-1", "large-1", "small-2", "large-2"}).items;
    EXPECT_EQ(titlesOf(items), QStringList({tree.path("large-1"), tree.path("large-2"),
                                          tree.path("small-1"), tree.path("small-2")}));
}

TEST_F(DuplicateFinderTest, ClonesCountOnceLikeHardLinks)
{
    const QByteArray content = randomContent(1'300'000);
    tree.file("original", content);
    tree.file("copy", content);
    if (!reflink(tree.path("original"), tree.path("clone")))
        GTEST_SKIP() << "the temporary folder's file system cannot share blocks (no reflinks)";
    tree.setTimes("original", 1'600'000'000);
    tree.setTimes("copy", 1'650'000'000);
    tree.setTimes("clone", 1'700'000'000);
    const auto outcome = find({"clone", "copy", "original"});
    QStringList kept = titlesOf(outcome.items);
    kept.sort();
    EXPECT_EQ(kept, QStringList({"~/copy", "~/original"})) << "the clone is the younger of the pair";
    EXPECT_EQ(outcome.stats.sharedStorage, 1);
    EXPECT_TRUE(find({"clone", "original"}).items.isEmpty()) << "removing either frees nothing";
}

// Files that are all holes free nothing: they make no rows and are not even opened, however
// many share a size. A file with holes still matches its dense twin by content.
TEST_F(DuplicateFinderTest, HolesFreeNothingAndAreNeverRead)
{
    QStringList sparse;
    for (int i = 0; i < 1'500; ++i) {  // the count a home of sparse images reaches
        const QString name = QStringLiteral("sparse/%1").arg(i);
        QFile file(tree.file(name));
        ASSERT_TRUE(file.resize(2'000'000));
        sparse.append(name);
    }
    if (candidate(tree.path(sparse.first())).allocated != 0)
        GTEST_SKIP() << "this file system stores holes as data";
    const auto holes = find(sparse);
    EXPECT_TRUE(holes.items.isEmpty());
    EXPECT_EQ(holes.stats.filesRead, 0);
    EXPECT_EQ(holes.stats.bytesRead, 0);

    const qint64 size = 4 * 1'048'576;
    QByteArray content(size, '\0');
    content.replace(0, head, randomContent(head));
    content.replace(size - head, head, randomContent(head));
    tree.file("dense", content);
    QFile gappy(tree.file("gappy", content.left(head)));
    ASSERT_TRUE(gappy.open(QIODevice::ReadWrite));
    ASSERT_TRUE(gappy.seek(size - head));
    ASSERT_EQ(gappy.write(content.right(head)), head);
    gappy.close();
    const auto pair = find({"dense", "gappy"});
    EXPECT_EQ(titlesOf(pair.items).size(), 2);
    EXPECT_EQ(pair.items.value(0).duplicateGroup, sha256(content));
    EXPECT_LT(pair.stats.bytesRead, 2 * size) << "the gappy file's holes were read";
}

TEST(DuplicateFinderDigest, MatchesSha256AcrossChunksAndStopsAtTheLimit)
{
    TempTree tree;
    EXPECT_EQ(DuplicateFinder::digest(tree.file("abc", QByteArray("abc"))),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(DuplicateFinder::digest(tree.path("missing")), std::nullopt);
    EXPECT_EQ(DuplicateFinder::digest(tree.dir("folder")), std::nullopt);
    const QByteArray content = randomContent(2'500'000);
    const QString path = tree.file("big", content);
    EXPECT_EQ(DuplicateFinder::digest(path), sha256(content));
    EXPECT_EQ(DuplicateFinder::digest(path, 1'500'000), sha256(content.left(1'500'000)));
}

}  // namespace
