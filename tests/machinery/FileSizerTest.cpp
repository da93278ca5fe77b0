#include "machinery/FileSizer.h"
#include "machinery/Fingerprint.h"
#include "machinery/ScanProgress.h"
#include "support/AllocatedBytes.h"
#include "support/LockedFolders.h"
#include "support/TempTree.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray describe(const FileSizer::Measurement& m)
{
    return QByteArray::number(m.unreadable) + ' ' + (m.complete ? "complete" : "incomplete") + ' '
        + QByteArray::number(m.files);
}

}  // namespace

TEST(FileSizer, CountsBlocksOfFilesAndFoldersAndLogicalLengthOfFiles)
{
    TempTree tree;
    const QString data = tree.file("top/data.bin", 300'000);
    tree.sparseFile("top/sub/hole.bin", 50'000'000);
    const FileSizer::Measurement m = FileSizer::measure(tree.path("top"));

    const qint64 folders = allocatedBytes(tree.path("top")) + allocatedBytes(tree.path("top/sub"));
    EXPECT_EQ(m.bytes, folders + allocatedBytes(data) + allocatedBytes(tree.path("top/sub/hole.bin")));
    EXPECT_LT(m.bytes, 1'000'000) << "a hole takes no blocks";
    EXPECT_EQ(m.logicalBytes, 50'300'000);
    EXPECT_EQ(m.files, 2);
}

TEST(FileSizer, LatestChangeTakesNewestFileAndFolderTime)
{
    TempTree tree;
    tree.file("top/sub/old", 10);
    tree.setTimes("top/sub/old", 4'000'000'000);  // beyond any status-change time of the test
    EXPECT_EQ(FileSizer::measure(tree.path("top")).latestChange, 4'000'000'000);

    tree.setTimes("top/sub", 5'000'000'000);
    EXPECT_EQ(FileSizer::measure(tree.path("top")).latestChange, 5'000'000'000);
}

TEST(FileSizer, MeasuresASingleFileAndNothingForAMissingPath)
{
    TempTree tree;
    const QString file = tree.file("lone", 5000);
    EXPECT_EQ(FileSizer::measure(file).bytes, allocatedBytes(file));

    const FileSizer::Measurement missing = FileSizer::measure(tree.path("missing"));
    EXPECT_EQ(describe(missing), "1 incomplete 0");
    EXPECT_EQ(missing.bytes, 0);
}

TEST(FileSizer, UnreadableSubfolderLeavesMeasurementCompleteButUnreadableTopDoesNot)
{
    TempTree tree;
    tree.file("top/readable", 100);
    tree.file("top/locked/secret", 100);
    tree.file("locked-top/secret", 100);
    const auto results = withFoldersLocked(tree, {tree.path("top/locked"), tree.path("locked-top")}, [&] {
        return describe(FileSizer::measure(tree.path("top"))) + '|'
            + describe(FileSizer::measure(tree.path("locked-top")));
    });
    if (!results)
        GTEST_SKIP() << cannotLockFolders;
    EXPECT_EQ(*results, "1 complete 1|1 incomplete 0");
}

TEST(FileSizer, PublishesEveryEntryAndReadsNothingOnceCancelled)
{
    TempTree tree;
    const QByteArray empty = QFile::encodeName(tree.file("empty"));
    for (int i = 0; i < 5000; ++i)  // names of one file: a new inode costs far more than the walk
        ::link(empty.constData(), QFile::encodeName(tree.dir(QStringLiteral("top/d%1").arg(i % 10))) + "/f" + QByteArray::number(i));
    ScanProgress progress;
    EXPECT_EQ(FileSizer::measure(tree.path("top"), &progress).files, 1) << "5,000 names of one file";
    EXPECT_EQ(progress.snapshot().entries, 5000 + 10 + 1);

    progress.reset();
    CancellationToken cancellation;
    cancellation.cancel();
    const FileSizer::Measurement stopped = FileSizer::measure(tree.path("top"), &progress, &cancellation);
    EXPECT_FALSE(stopped.complete);
    EXPECT_EQ(stopped.files, 0) << "no folder is read once cancelled";
    EXPECT_LE(progress.snapshot().entries, 1);
}

// Big enough to be measured on two threads, with hard links whose copies land in different
// threads' subtrees: the sum must still be du's, to the byte, also when the walk stamps the
// tree at the same time; and the stamp joined from the pieces still sees a change deep in one.
TEST(FileSizer, BigTreeMeasuredInPiecesMatchesDu)
{
    TempTree tree;
    tree.file("top/d00/linked", 40'000);
    const QByteArray empty = QFile::encodeName(tree.file("top/empty"));
    for (int folder = 0; folder < 25; ++folder) {
        const QString name = QStringLiteral("top/d%1").arg(folder, 2, 10, QLatin1Char('0'));
        const QByteArray path = QFile::encodeName(tree.dir(name + "/inner"));
        for (int i = 0; i < 1000; ++i)  // names of one empty file: a new inode costs far more than the walk
            ::link(empty.constData(), path + "/f" + QByteArray::number(i));
        tree.file(name + "/inner/data", folder * 5'000);
        if (folder > 0)
            tree.hardlink(name + "/inner/copy", "top/d00/linked");
    }

    const FileSizer::Measurement m = FileSizer::measure(tree.path("top"));

    QProcess du;
    du.start(QStringLiteral("du"), {QStringLiteral("-s"), QStringLiteral("-B1"), tree.path("top")});
    ASSERT_TRUE(du.waitForFinished(60'000));
    EXPECT_EQ(m.bytes, du.readAllStandardOutput().split('\t').first().toLongLong());
    EXPECT_EQ(m.files, 1 + 25 + 1) << "each linked file once";
    EXPECT_EQ(m.logicalBytes, 40'000 + 5'000 * (24 * 25 / 2));
    EXPECT_TRUE(m.complete);

    const std::optional<Fingerprint::Measured> stamped = Fingerprint::measured(tree.path("top"), nullptr, nullptr);
    ASSERT_TRUE(stamped.has_value());
    EXPECT_EQ(stamped->size.bytes, m.bytes);
    EXPECT_EQ(stamped->size.files, m.files);
    EXPECT_EQ(stamped->size.logicalBytes, m.logicalBytes);
    EXPECT_EQ(stamped->stamp.files, 1 + 1 + 25 * 1001 + 24) << "the stamp lists every name of the linked files";
    EXPECT_EQ(stamped->stamp, Fingerprint::compute(tree.path("top")));
    tree.setTimes("top/d24/inner/data", 1'600'000'000);
    EXPECT_NE(Fingerprint::compute(tree.path("top")), stamped->stamp);
}
