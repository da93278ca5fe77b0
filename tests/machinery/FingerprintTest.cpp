#include "machinery/Fingerprint.h"
#include "machinery/ScanProgress.h"
#include "support/TempTree.h"

#include <QDir>

#include <QFile>

#include <gtest/gtest.h>

namespace {

constexpr qint64 longAgo = 1'600'000'000;

// A small project folder with a nested file, an empty folder and a link out of the tree.
void buildProject(const TempTree& tree, const QString& top, const QString& outside)
{
    tree.file(top + QStringLiteral("/a.txt"), 100);
    tree.file(top + QStringLiteral("/sub/b.bin"), 2000);
    tree.dir(top + QStringLiteral("/empty"));
    tree.symlink(top + QStringLiteral("/link"), outside);
    for (const char* entry : {"/a.txt", "/sub/b.bin", "/empty", "/link", "/sub", ""})
        tree.setTimes(top + QLatin1String(entry), longAgo);
}

TreeStamp stampOf(const QString& path)
{
    const std::optional<TreeStamp> stamp = Fingerprint::compute(path);
    EXPECT_TRUE(stamp.has_value());
    return stamp.value_or(TreeStamp{});
}

TEST(Fingerprint, CountsFilesAndBytesWithoutFollowingLinks)
{
    TempTree tree;
    tree.file(QStringLiteral("outside/huge.bin"), 50'000);
    buildProject(tree, QStringLiteral("project"), tree.path(QStringLiteral("outside")));

    const TreeStamp stamp = stampOf(tree.path(QStringLiteral("project")));
    EXPECT_EQ(stamp.files, 2);
    EXPECT_EQ(stamp.bytes, 2100);
    EXPECT_EQ(stamp.unreadable, 0);
    EXPECT_EQ(stamp.latestChange, longAgo);
}

TEST(Fingerprint, MatchesACopyButSeesRewrittenAddedAndRetypedEntries)
{
    TempTree tree;
    buildProject(tree, QStringLiteral("p"), QStringLiteral("/nowhere"));
    buildProject(tree, QStringLiteral("copy"), QStringLiteral("/nowhere"));
    const QString top = tree.path(QStringLiteral("p"));
    const TreeStamp before = stampOf(top);
    const TreeStamp copy = stampOf(tree.path(QStringLiteral("copy")));
    EXPECT_EQ(copy.layout, before.layout);
    EXPECT_EQ(copy.stamps, before.stamps);

    tree.file(QStringLiteral("copy/sub/b.bin"), 2000, 'y');  // same size, new time
    const TreeStamp rewritten = stampOf(tree.path(QStringLiteral("copy")));
    EXPECT_EQ(rewritten.layout, before.layout);
    EXPECT_NE(rewritten.stamps, before.stamps);

    tree.file(QStringLiteral("p/sub/new.txt"), 0);
    const TreeStamp added = stampOf(top);
    EXPECT_NE(added.layout, before.layout);
    EXPECT_EQ(added.files, before.files + 1);

    QDir().rmdir(tree.path(QStringLiteral("p/empty")));
    tree.file(QStringLiteral("p/empty"), 0);  // a folder became a file of the same name
    EXPECT_NE(stampOf(top).layout, added.layout);
}

TEST(Fingerprint, IgnoresFinderMetadataFiles)
{
    TempTree tree;
    buildProject(tree, QStringLiteral("p"), QStringLiteral("/nowhere"));
    const QString top = tree.path(QStringLiteral("p"));
    const TreeStamp before = stampOf(top);
    tree.file(QStringLiteral("p/sub/.DS_Store"), 6148);
    tree.setTimes(QStringLiteral("p/sub"), longAgo);
    const TreeStamp after = stampOf(top);
    EXPECT_EQ(after.files, before.files);
    EXPECT_EQ(after.layout, before.layout);
    EXPECT_EQ(after.stamps, before.stamps);

    // Only Finder's file is noise: a folder of that name holds someone's data.
    tree.file(QStringLiteral("p/sub/.DS_Store.d/kept"), 10);
    ASSERT_TRUE(QFile::remove(tree.path(QStringLiteral("p/sub/.DS_Store"))));
    ASSERT_TRUE(QFile::rename(tree.path(QStringLiteral("p/sub/.DS_Store.d")), tree.path(QStringLiteral("p/sub/.DS_Store"))));
    tree.setTimes(QStringLiteral("p/sub"), longAgo);
    EXPECT_EQ(stampOf(top).files, before.files + 1);
}

TEST(Fingerprint, AMissingPathIsUnreadableAndAStoppedWalkHasNoResult)
{
    TempTree tree;
    EXPECT_EQ(stampOf(tree.path(QStringLiteral("missing"))).unreadable, 1);

    for (int i = 0; i < 600; ++i)
        tree.file(QStringLiteral("many/%1").arg(i), 1);
    CancellationToken token;
    token.cancel();
    EXPECT_FALSE(Fingerprint::compute(tree.path(QStringLiteral("many")), &token).has_value());
    EXPECT_EQ(stampOf(tree.path(QStringLiteral("many"))).files, 600);
}

// A row that is both measured and guarded takes both from one walk: the stamp must be the
// remover's, the size FileSizer's (which counts Finder's files and a hard link once).
TEST(Fingerprint, OneWalkGivesTheStampAndTheMeasurement)
{
    TempTree tree;
    buildProject(tree, QStringLiteral("p"), QStringLiteral("/nowhere"));
    tree.file(QStringLiteral("p/sub/.DS_Store"), 6148);
    tree.hardlink(QStringLiteral("p/a-again.txt"), QStringLiteral("p/a.txt"));
    const QString top = tree.path(QStringLiteral("p"));

    ScanProgress progress;
    const std::optional<Fingerprint::Measured> measured = Fingerprint::measured(top, &progress, nullptr);
    ASSERT_TRUE(measured.has_value());
    EXPECT_EQ(measured->stamp, stampOf(top));
    EXPECT_EQ(measured->stamp.files, 3) << "both names of the linked file are part of the layout";
    const FileSizer::Measurement sized = FileSizer::measure(top);
    EXPECT_EQ(measured->size.bytes, sized.bytes);
    EXPECT_EQ(measured->size.files, sized.files);
    EXPECT_EQ(measured->size.logicalBytes, 100 + 2000 + 6148);
    EXPECT_EQ(measured->size.latestChange, sized.latestChange);
    EXPECT_EQ(progress.snapshot().entries, 8) << "each entry counted once";

    CancellationToken token;
    token.cancel();
    EXPECT_FALSE(Fingerprint::measured(top, nullptr, &token).has_value());
}

}  // namespace
