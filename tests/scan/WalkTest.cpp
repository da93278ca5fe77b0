#include "WalkFixture.h"
#include "support/AllocatedBytes.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

using WalkFiles = WalkFixture;

TEST_F(WalkFiles, SizeThresholdsAndInstallerExtensions)
{
    tree.sparseFile("scan/just-below", 999'999);
    tree.sparseFile("scan/exactly-minimum", 1'000'000);
    tree.sparseFile("scan/almost-large", 199'999'999);
    tree.sparseFile("scan/Fotos – 2024/Ünïcødé 📷.mov", 200'000'000);
    for (const char* installer : {"a.dmg", "b.PKG", "c.Mpkg", "d.xIp"})
        tree.sparseFile(QStringLiteral("scan/") + installer, 300'000'000);
    // Linux's packages and app images are installers there, each kept out of Large Files.
    for (const char* installer : {"e.deb", "f.RPM", "g.AppImage", "h.flatpakref"})
        tree.sparseFile(QStringLiteral("scan/") + installer, 300'000'000);
    const Walk walk = walked({"scan"});

    EXPECT_EQ(candidates(walk), QStringList({"scan/Fotos – 2024/Ünïcødé 📷.mov", "scan/a.dmg", "scan/almost-large",
                                             "scan/b.PKG", "scan/c.Mpkg", "scan/d.xIp", "scan/e.deb",
                                             "scan/exactly-minimum", "scan/f.RPM", "scan/g.AppImage", "scan/h.flatpakref"}));
    EXPECT_EQ(largeFiles(walk), QStringList({"scan/Fotos – 2024/Ünïcødé 📷.mov"}));
    EXPECT_EQ(candidates(walked({"scan/exactly-minimum"})), QStringList({"scan/exactly-minimum"}))
        << "a file given as the root is looked at too";
}

TEST_F(WalkFiles, CandidatesCarryIdentitySizesAndNanosecondTime)
{
    const QString path = tree.file("scan/real", 1'200'000);
    const struct timespec times[2] = {{1'700'000'000, 123'456'789}, {1'700'000'000, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    const QString sparse = tree.sparseFile("scan/sparse", 250'000'000);
    const Walk walk = walked({"scan"});

    const auto real = std::find_if(walk.duplicateCandidates().begin(), walk.duplicateCandidates().end(),
                                   [&](const DuplicateFinder::File& f) { return f.path == path; });
    ASSERT_NE(real, walk.duplicateCandidates().end());
    EXPECT_EQ(real->size, 1'200'000);
    EXPECT_EQ(real->allocated, allocatedBytes(path));
    EXPECT_EQ(real->stamp.modified, 1'700'000'000'123'456'789);

    ASSERT_EQ(walk.largeFiles().size(), 1);
    EXPECT_EQ(walk.largeFiles().front().size, allocatedBytes(sparse)) << "a large file's size is what it takes on disk";
    EXPECT_LT(walk.largeFiles().front().size, 1'000'000);
}

TEST_F(WalkFiles, HiddenFoldersBelowTheRootAndSyncedHomeFoldersAreIgnored)
{
    tree.sparseFile("home/Projects/.cache/x/big", 300'000'000);
    tree.sparseFile("home/Projects/app/.build-cache/big", 2'000'000);
    tree.sparseFile("home/Projects/.bigfile", 300'000'000);
    tree.sparseFile("home/Dropbox (Personal)/big", 2'000'000);
    tree.sparseFile("home/OneDrive - Work/big", 2'000'000);
    tree.sparseFile("home/Google Drive/big", 2'000'000);
    tree.sparseFile("home/Documents/Google Drive/big", 2'000'000);
    const Walk projects = walked({"home/Projects"});
    EXPECT_EQ(candidates(projects), QStringList({"home/Projects/.bigfile"}));

    const Walk home = walked({"home"});
    EXPECT_EQ(candidates(home), QStringList({"home/Documents/Google Drive/big", "home/Projects/.bigfile"}));
}

using WalkSkips = WalkFixture;

TEST_F(WalkSkips, PackagesInAnyCaseAreNeverEntered)
{
    for (const char* package : {"Photos Library.photoslibrary", "Thing.APP", "Kit.Framework", "Disk.sparsebundle",
                                "VM.utm", "Song.band"})
        tree.sparseFile(QStringLiteral("scan/%1/inside").arg(package), 2'000'000);
    tree.sparseFile("scan/notes.appdata/inside", 2'000'000);
    tree.sparseFile("scan/app/inside", 2'000'000);
    const Walk walk = walked({"scan"});
    EXPECT_EQ(candidates(walk), QStringList({"scan/app/inside", "scan/notes.appdata/inside"}));
}

TEST_F(WalkSkips, SafeFoldersGoPackagesAndHomeToolFolders)
{
    for (const char* folder : {"Library", "Applications", ".hidden", ".cargo", "go/pkg", "Work/kept-safe",
                               "Documents/Library", "Documents/.Trash/proj", "go/src", "Work/other"}) {
        tree.sparseFile(QStringLiteral("home/%1/big").arg(folder), 2'000'000);
    }
    tree.file("home/Documents/.Trash/proj/package.json");
    tree.dir("home/Documents/.Trash/proj/node_modules");
    tree.file("home/Work/kept-safe/package.json");
    tree.dir("home/Work/kept-safe/node_modules");
    context.safeFolders.insert(tree.path("home/Work/kept-safe"));
    const Walk walk = walked({"home"});
    EXPECT_EQ(candidates(walk), QStringList({"home/Documents/Library/big", "home/Work/other/big", "home/go/src/big"}));
    EXPECT_TRUE(walk.artifacts().isEmpty()) << qPrintable(artifacts(walk).join(", "));
}

// A name that is not valid text could be neither shown nor found again by its path: such
// folders are not entered and such files not offered; the walk says how many it left out.
TEST_F(WalkFiles, NamesThatAreNotTextAreLeftOutAndCounted)
{
    tree.sparseFile(QStringLiteral("scan/caf\u00e9/big"), 2'000'000);
    const QByteArray scan = QFile::encodeName(tree.dir("scan"));
    const QByteArray badFolder = scan + "/bad\xff";
    const QByteArray badFile = scan + "/caf\xe9.bin";  // Latin-1 bytes, not UTF-8
    ASSERT_EQ(::mkdir(badFolder.constData(), 0755), 0);
    for (const QByteArray& file : {badFolder + "/big", badFile, scan + "/small\xff"}) {
        const int descriptor = ::open(file.constData(), O_WRONLY | O_CREAT, 0644);
        ASSERT_EQ(::ftruncate(descriptor, file.endsWith("\xff") ? 10 : 2'000'000), 0);
        ::close(descriptor);
    }
    const Walk walk = walked({"scan"});
    for (const QByteArray& file : {badFolder + "/big", badFile, scan + "/small\xff"})
        ::unlink(file.constData());  // QDir cannot name them to clean up
    ::rmdir(badFolder.constData());

    EXPECT_EQ(candidates(walk), QStringList({QStringLiteral("scan/caf\u00e9/big")}));
    EXPECT_EQ(walk.undecodable(), 2) << "the folder and the big file; a small file was never a candidate";
}

using WalkProgress = WalkFixture;

TEST_F(WalkProgress, CountsEveryEntryAndShowsShallowFoldersFromHome)
{
    tree.file("home/Projects/a/b/c/file");
    tree.file("home/Projects/a/b/c/other");
    tree.file("home/Projects/a/node_modules/ignored");
    const Walk walk = walked({"home/Projects"});
    // Projects, a, b, c, two files, the unproven node_modules (reported, not entered).
    const ScanProgress::Snapshot snapshot = context.progress->snapshot();
    EXPECT_EQ(snapshot.entries, 7);
    EXPECT_EQ(snapshot.currentFolder, "~/Projects/a/b") << "the third level is not shown";

    tree.dir("elsewhere/x");
    context.progress->reset();
    walked({"elsewhere"});
    EXPECT_EQ(context.progress->snapshot().currentFolder, tree.path("elsewhere/x"));
}

TEST_F(WalkProgress, CancellationStopsBeforeTheNextFolder)
{
    for (int i = 0; i < 50; ++i)
        tree.sparseFile(QStringLiteral("scan/f%1").arg(i), 1'000'000);
    context.cancellation.cancel();
    const Walk walk = walked({"scan"});
    EXPECT_LE(context.progress->snapshot().entries, 1);
    EXPECT_TRUE(walk.duplicateCandidates().isEmpty());
}
