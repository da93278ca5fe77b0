#include "actions/TreeRemoval.h"
#include "support/FileLook.h"
#include "support/LinkSwapper.h"
#include "support/TempTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray bytes(const QString& path)
{
    return QFile::encodeName(path);
}

// Hands the whole tree to the user "nobody", who will remove it in runUnprivileged.
void giveToNobody(const QString& root)
{
    QDirIterator entries(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        ::lchown(bytes(entries.next()).constData(), 65534, 65534);
    ::lchown(bytes(root).constData(), 65534, 65534);
}

}  // namespace

// Read-only folders, links to things outside, a hard link whose other name lies outside and a
// chain of folders past PATH_MAX: everything inside goes, nothing outside is touched, not even
// the mode of the read-only file that shares its data with a name inside.
TEST(TreeRemoval, RemovesReadOnlyAndVeryDeepTreesAndNothingALinkPointsTo)
{
    TempTree tree;
    tree.file("outside/kept", 100);
    tree.file("outside/folder/kept", 100);
    tree.file("doomed/a/locked/file", 100);
    tree.symlink("doomed/to-file", tree.path("outside/kept"));
    tree.symlink("doomed/a/to-folder", tree.path("outside/folder"));
    tree.hardlink("doomed/other-name", "outside/kept");
    ::chmod(bytes(tree.path("outside/kept")).constData(), 0444);
    ::chmod(bytes(tree.path("doomed/a/locked")).constData(), 0500);
    int folder = ::open(bytes(tree.path("doomed")).constData(), O_RDONLY | O_DIRECTORY);
    const QByteArray component(60, 'd');
    for (int level = 0; level < 80; ++level) {  // 80 x 61 bytes: past PATH_MAX
        ASSERT_EQ(::mkdirat(folder, component.constData(), 0755), 0);
        const int next = ::openat(folder, component.constData(), O_RDONLY | O_DIRECTORY);
        ::close(folder);
        folder = next;
    }
    ::close(::openat(folder, "bottom", O_WRONLY | O_CREAT, 0444));
    ::close(folder);

    EXPECT_TRUE(TreeRemoval::removeTree(tree.path("doomed")));
    // A link or a file as the target itself goes alone.
    EXPECT_TRUE(TreeRemoval::removeTree(tree.symlink("link", tree.path("outside"))));
    EXPECT_TRUE(TreeRemoval::removeTree(tree.file("single", 10)));

    for (const char* gone : {"doomed", "link", "single"})
        EXPECT_FALSE(FileStatus::exists(tree.path(gone))) << gone;
    EXPECT_EQ(QFileInfo(tree.path("outside/kept")).size(), 100);
    EXPECT_EQ(QFileInfo(tree.path("outside/folder/kept")).size(), 100);
    EXPECT_EQ(modeOf(tree.path("outside/kept")), 0444u);
    EXPECT_TRUE(TreeRemoval::removeTree(tree.path("doomed"))) << "nothing there is nothing left";
}

// Where modes bind (an ordinary user), folders without write, read or search permission are
// opened up through their own descriptors and go; files are never made writable, so the
// read-only file outside that shares its data with one inside keeps its mode.
TEST(TreeRemoval, FoldersWithoutPermissionsGoWhileFilesKeepTheirModes)
{
    TempTree tree;
    tree.file("outside/kept.mod", 100);
    tree.file("doomed/pkg/sealed/deep/file", 10);
    tree.hardlink("doomed/pkg/go.mod", "outside/kept.mod");
    ::chmod(bytes(tree.path("outside/kept.mod")).constData(), 0444);
    ::chmod(bytes(tree.path("doomed/pkg/sealed/deep")).constData(), 0);
    ::chmod(bytes(tree.path("doomed/pkg/sealed")).constData(), 0);
    ::chmod(bytes(tree.path("doomed/pkg")).constData(), 0555);
    ::chmod(bytes(tree.path("doomed")).constData(), 0555);
    giveToNobody(tree.root());

    const auto removed = tree.runUnprivileged([&] {
        return QByteArray(TreeRemoval::removeTree(tree.path("doomed")) ? "removed" : "kept");
    });
    if (!removed)
        GTEST_SKIP() << "running as root, and a child as 'nobody' could not be started to honour folder modes";
    EXPECT_EQ(*removed, "removed");
    EXPECT_FALSE(QFileInfo::exists(tree.path("doomed")));
    EXPECT_EQ(modeOf(tree.path("outside/kept.mod")), 0444u);
    EXPECT_EQ(QFileInfo(tree.path("outside/kept.mod")).size(), 100);
}

// The tree is reached through the folder the caller holds, whatever the path names by now, and
// only the object of the expected identity goes.
TEST(TreeRemoval, RemovesThroughTheHeldFolderAndOnlyTheExpectedObject)
{
    TempTree tree;
    tree.file("work/copy/data", 10);
    const int held = ::open(bytes(tree.path("work")).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(held, 0);
    struct stat copy {};
    ASSERT_EQ(::fstatat(held, "copy", &copy, AT_SYMLINK_NOFOLLOW), 0);
    ASSERT_TRUE(QDir().rename(tree.path("work"), tree.path("moved-away")));
    tree.file("work/copy/data", 20);  // the person's, made at the old path

    EXPECT_FALSE(TreeRemoval::removeAt(held, "copy", FileKey{qint32(copy.st_dev), quint64(copy.st_ino) + 1}));
    EXPECT_TRUE(QFileInfo::exists(tree.path("moved-away/copy/data"))) << "another identity is left alone";
    EXPECT_TRUE(TreeRemoval::removeAt(held, "copy", FileKey::of(copy)));
    ::close(held);

    EXPECT_FALSE(QFileInfo::exists(tree.path("moved-away/copy")));
    EXPECT_EQ(QFileInfo(tree.path("work/copy/data")).size(), 20);
}

// While a tree is being removed, another thread keeps swapping one of its folders for a link
// to a folder of the person's. Whatever the timing, the person's folder keeps every file. A
// removal by full paths loses files in about one run in eight of this race, so the default 40
// runs catch it nearly always; DUSTLARK_STRESS_RUNS (e.g. 1000) for a long run.
TEST(TreeRemoval, FolderSwappedForALinkDuringTheRemovalIsNeverFollowed)
{
    const int runs = std::max(40, qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS"));
    TempTree tree;
    for (int i = 0; i < 40; ++i)
        tree.file(QStringLiteral("precious/sub/f%1").arg(i), 10);
    for (int run = 0; run < runs; ++run) {
        for (int i = 0; i < 40; ++i)
            tree.file(QStringLiteral("doomed/sub/f%1").arg(i), 10);
        {
            const LinkSwapper swapper(tree.path("doomed/sub"), tree.path("precious/sub"));
            TreeRemoval::removeTree(tree.path("doomed"));
        }
        ASSERT_EQ(QDir(tree.path("precious/sub")).entryList(QDir::Files).size(), 40) << "run " << run;
        TreeRemoval::removeTree(tree.path("doomed"));
    }
}
