#include "actions/FreedesktopTrash.h"
#include "actions/Remover.h"
#include "actions/TrashFixture.h"
#include "support/FileLook.h"
#include "support/PrivateMount.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// Scan folders on another file system: /dev/shm is a tmpfs of its own here; a full disk and an
// exhausted inode table need a small tmpfs, mounted in a private mount namespace by a second
// run of this test program (as root, through unshare).

namespace {

const QByteArray ownId = QByteArray::number(::getuid());

class TrashVolume : public TrashFixture {};

TEST_F(TrashVolume, AScanFolderOnAnotherDiskIsCleanedIntoThatDisksOwnTrash)
{
    const TempTree scanFolder(QStringLiteral("/dev/shm"));
    ASSERT_FALSE(scanFolder.root().isEmpty());
    environment.otherVolumeFolders = {scanFolder.root()};
    const QString path = scanFolder.file(QStringLiteral("build/out.o"), QByteArray("object"));
    const ino_t inode = FileStatus::of(path)->st_ino;

    ASSERT_EQ(Remover::remove(trashItem({path}), environment), RemovalOutcome::movedToTrash());
    const QString trash = QStringLiteral("/dev/shm/.Trash-") + QString::fromLatin1(ownId);
    const QString trashed = trash + QStringLiteral("/files/out.o");
    const QString info = trash + QStringLiteral("/info/out.o.trashinfo");
    const auto landed = FileStatus::of(trashed);
    const QByteArray record = contentOf(info);
    QFile::remove(trashed);
    QFile::remove(info);

    ASSERT_TRUE(landed.has_value());
    EXPECT_EQ(landed->st_ino, inode);  // renamed on its own disk, not copied
    EXPECT_TRUE(record.contains("\nPath=" + QFile::encodeName(path).mid(QByteArray("/dev/shm/").size()) + '\n')) << record.constData();
    EXPECT_TRUE(trashedNames().isEmpty());  // nothing crossed to the home trash
}

// The child half of the tests below: runs only inside the private mount namespace.
class PrivateMount : public TrashFixture {
protected:
    void SetUp() override
    {
        mountPoint = qEnvironmentVariable("DUSTLARK_PRIVATE_MOUNT");
        if (mountPoint.isEmpty())
            GTEST_SKIP() << "runs inside TrashVolume.SmallFileSystemsInAPrivateMountNamespace";
        TrashFixture::SetUp();
    }

    void mountTmpfs(const QString& options) const
    {
        QProcess::execute(QStringLiteral("umount"), {mountPoint});
        ASSERT_EQ(QProcess::execute(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                                                              options, QStringLiteral("tmpfs"), mountPoint}), 0);
    }

    QString makeTarget() const
    {
        const QString scan = mountPoint + QStringLiteral("/scan");
        QDir().mkpath(scan);
        const QString path = scan + QStringLiteral("/cache.bin");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("kept") == 4);
        return path;
    }

    // Fills the file system: data until no block is left, or empty files until no inode is.
    void fill(bool inodes) const
    {
        for (int i = 0; i < 100'000; ++i) {
            const QByteArray name = QFile::encodeName(mountPoint + QStringLiteral("/fill-%1").arg(i));
            const int fd = ::open(name.constData(), O_CREAT | O_WRONLY, 0600);
            if (fd < 0)
                return;
            const QByteArray block(inodes ? 0 : 65536, 'f');
            const bool full = !inodes && ::write(fd, block.constData(), size_t(block.size())) < block.size();
            ::close(fd);
            if (full)
                return;
        }
    }

    QString mountPoint;
};

// A full disk and a disk without free inodes; the trash folders exist before the disk fills.
TEST_F(PrivateMount, AFullDiskOrInodeTableGivesASentenceAndLosesNothing)
{
    for (const bool inodes : {false, true}) {
        SCOPED_TRACE(inodes ? "no inodes left" : "no blocks left");
        mountTmpfs(inodes ? QStringLiteral("size=4m,nr_inodes=32") : QStringLiteral("size=256k"));
        const QString path = makeTarget();
        environment.otherVolumeFolders = {mountPoint + QStringLiteral("/scan")};
        const QString trash = mountPoint + QStringLiteral("/.Trash-") + QString::fromLatin1(ownId);
        QDir().mkpath(trash + QStringLiteral("/files"));
        QDir().mkpath(trash + QStringLiteral("/info"));
        fill(inodes);

        const QString reason = RemovalReasons::trashFailed(QString::fromStdString(std::generic_category().message(ENOSPC)));
        EXPECT_EQ(Remover::remove(trashItem({path}), environment), RemovalOutcome::failed(reason));
        EXPECT_EQ(contentOf(path), QByteArray("kept"));
        EXPECT_TRUE(entriesOf(trash + QStringLiteral("/files")).isEmpty());
        EXPECT_TRUE(entriesOf(trash + QStringLiteral("/info")).isEmpty());  // no empty record left behind
    }
}

// A shared .Trash is used only when it is a real folder with the sticky bit; a link is not.
TEST_F(PrivateMount, TheSharedTrashIsUsedOnlyWhenItIsARealStickyFolder)
{
    mountTmpfs(QStringLiteral("size=4m"));
    environment.otherVolumeFolders = {mountPoint + QStringLiteral("/scan")};
    TempTree elsewhere;
    ASSERT_EQ(::symlink(QFile::encodeName(elsewhere.root()).constData(), QFile::encodeName(mountPoint + QStringLiteral("/.Trash")).constData()), 0);
    ASSERT_EQ(Remover::remove(trashItem({makeTarget()}), environment), RemovalOutcome::movedToTrash());
    EXPECT_TRUE(entriesOf(elsewhere.root()).isEmpty());
    EXPECT_EQ(entriesOf(mountPoint + QStringLiteral("/.Trash-") + QString::fromLatin1(ownId) + QStringLiteral("/files")), QStringList{QStringLiteral("cache.bin")});

    ASSERT_EQ(::unlink(QFile::encodeName(mountPoint + QStringLiteral("/.Trash")).constData()), 0);
    ASSERT_EQ(::mkdir(QFile::encodeName(mountPoint + QStringLiteral("/.Trash")).constData(), 01777), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(mountPoint + QStringLiteral("/.Trash")).constData(), 01777), 0);
    ASSERT_EQ(Remover::remove(trashItem({makeTarget()}), environment), RemovalOutcome::movedToTrash());
    EXPECT_EQ(entriesOf(mountPoint + QStringLiteral("/.Trash/") + QString::fromLatin1(ownId) + QStringLiteral("/files")), QStringList{QStringLiteral("cache.bin")});
}

// A disk mounted on the Trash's "files" folder is not the Trash's own: Empty Trash refuses it
// and removes nothing on it.
TEST_F(PrivateMount, EmptyTrashRefusesAFilesFolderOnAnotherDisk)
{
    mountTmpfs(QStringLiteral("size=1m"));
    const QString files = trashFolder() + QStringLiteral("/files");
    QDir().mkpath(files);
    QDir().mkpath(trashFolder() + QStringLiteral("/info"));
    const QString kept = makeTarget();
    ASSERT_EQ(QProcess::execute(QStringLiteral("mount"), {QStringLiteral("--bind"), mountPoint, files}), 0);

    const std::optional<QString> refusal = FreedesktopTrash::empty();
    const QStringList onDisk = entriesOf(files);
    QProcess::execute(QStringLiteral("umount"), {files});

    EXPECT_EQ(refusal, QStringLiteral("Nothing was removed: %1 lies on another disk than the Trash.").arg(files));
    EXPECT_EQ(onDisk, QStringList{QStringLiteral("scan")});
    EXPECT_EQ(contentOf(kept), QByteArray("kept"));
}

TEST_F(TrashVolume, SmallFileSystemsInAPrivateMountNamespace)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("DUSTLARK_PRIVATE_MOUNT"), home.dir(QStringLiteral("mnt")));
    const auto run = runInPrivateMount(QStringLiteral("echo MOUNTED; exec \"$2\" --gtest_filter=PrivateMount.*"), {}, variables);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);
    EXPECT_TRUE(run->output.contains(QLatin1String("[  PASSED  ] 3 tests."))) << qPrintable(run->output + run->error);
}

}  // namespace
