// Moves to disks that /dev/shm can't stand for: a real exFAT disk (FUSE on a loop device: no
// exclusive rename, times kept to the second, no symbolic links), a tmpfs that fills up during
// the copy and a read-only one. Each is mounted in a private mount namespace (unshare(1)); the
// test binary re-runs itself there with DUSTLARK_MOVE_DESTINATION naming the mounted folder.
#include "actions/MoverFixture.h"
#include "actions/MoverReasons.h"
#include "actions/ToolStandIn.h"
#include "support/PrivateMount.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFileInfo>

namespace {

// `setup` mounts the disk at "$1" and prints MOUNTED, then runs the tests matching `filter` of
// this program ("$2") inside the namespace.
void expectPassedOnMountedDisk(const QString& setup, const QString& filter)
{
    TempTree tree;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DUSTLARK_MOVE_DESTINATION"), tree.dir(QStringLiteral("disk")));
    environment.insert(QStringLiteral("DUSTLARK_IMAGE"), tree.path(QStringLiteral("disk.img")));
    const QString tests = QStringLiteral("\"$2\" --gtest_also_run_disabled_tests --gtest_filter=") + filter;
    const auto run = runInPrivateMount(setup.arg(tests), tree.path(QStringLiteral("disk")), environment, 120'000);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);
    EXPECT_TRUE(run->output.contains(QLatin1String("[  PASSED  ]"))) << qPrintable(run->output + run->error);
    EXPECT_FALSE(run->output.contains(QLatin1String("[  FAILED  ]"))) << qPrintable(run->output);
    EXPECT_FALSE(run->output.contains(QLatin1String("[  SKIPPED ]"))) << qPrintable(run->output);
}

bool insideNamespace()
{
    return !qEnvironmentVariableIsEmpty("DUSTLARK_MOVE_DESTINATION");
}

const QString exfatSetup = QStringLiteral(
    "command -v mkfs.exfat >/dev/null && command -v mount.exfat-fuse >/dev/null || { echo 'no exFAT tools' >&2; exit 77; }\n"
    "truncate -s 32M \"$DUSTLARK_IMAGE\" && mkfs.exfat \"$DUSTLARK_IMAGE\" >/dev/null 2>&1 || { echo 'mkfs failed' >&2; exit 77; }\n"
    "loop=$(losetup -f --show \"$DUSTLARK_IMAGE\" 2>&1) || { echo \"$loop\" >&2; exit 77; }\n"
    "mount.exfat-fuse \"$loop\" \"$1\" >/dev/null 2>&1 || { losetup -d \"$loop\"; echo 'FUSE mount failed' >&2; exit 77; }\n"
    "echo MOUNTED; %1; status=$?; umount \"$1\"; losetup -d \"$loop\"; exit $status\n");

// Few inodes, so the copy of a folder of many small files runs out of room halfway.
const QString smallTmpfsSetup = QStringLiteral(
    "mount -t tmpfs -o size=4m,nr_inodes=40 dustlark-test \"$1\" || exit 77; echo MOUNTED; exec %1\n");

const QString readOnlySetup = QStringLiteral("mount -t tmpfs -o ro dustlark-test \"$1\" || exit 77; echo MOUNTED; exec %1\n");

}  // namespace

TEST(MoverOnMountedDisks, ExFat)
{
    expectPassedOnMountedDisk(exfatSetup, QStringLiteral("MoverFixture.DISABLED_OnExFat*"));
}

TEST(MoverOnMountedDisks, FillingUpAndReadOnly)
{
    expectPassedOnMountedDisk(smallTmpfsSetup, QStringLiteral("MoverFixture.DISABLED_OnASmallDisk*"));
    expectPassedOnMountedDisk(readOnlySetup, QStringLiteral("MoverFixture.DISABLED_OnAReadOnlyDisk*"));
}

// ---- The sides that run inside the namespace

TEST_F(MoverFixture, DISABLED_OnExFatCopiesWithCoarseTimesAndPlacesWithoutReplacing)
{
    if (!insideNamespace())
        GTEST_SKIP() << "runs inside the namespace made by MoverOnMountedDisks";
    home.file(QStringLiteral("Movies/trip/day1.mov"), 300'000, 'a');
    home.file(QStringLiteral("Movies/trip/notes/list.txt"), QByteArray("sunscreen\n"));
    const QString trip = home.path(QStringLiteral("Movies/trip"));
    const auto before = snapshot(trip);
    ASSERT_EQ(moveItem(trashItem({trip})), Mover::Outcome::moved(destination + QStringLiteral("/trip")));
    EXPECT_EQ(snapshot(destination + QStringLiteral("/trip")), before);
    EXPECT_EQ(destinationNames(), QStringList{QStringLiteral("trip")});

    // Without exclusive rename the name is checked just before a plain rename.
    const QString clip = home.file(QStringLiteral("Movies/clip.mov"), 1000);
    moveEnvironment.copyTool = scriptTool(QStringLiteral("cp -r -- \"$1\" \"$2\" && echo theirs > \"%1/clip.mov\"").arg(destination));
    EXPECT_EQ(moveItem(trashItem({clip})), Mover::Outcome::failed(Mover::Reasons::nameTaken(QStringLiteral("clip.mov"))));
    EXPECT_EQ(QFileInfo(destination + QStringLiteral("/clip.mov")).size(), 7);
    EXPECT_EQ(QFileInfo(clip).size(), 1000);
}

// macOS keeps a file's extended attributes on exFAT as a "._name" file beside it, so a copy
// with them has more files than the original. The stand-in plays ditto doing that.
TEST_F(MoverFixture, DISABLED_OnExFatDittoCopiesWithoutExtendedAttributes)
{
    if (!insideNamespace())
        GTEST_SKIP() << "runs inside the namespace made by MoverOnMountedDisks";
    const ToolStandIn ditto(QStringLiteral("ditto-standin"), QStringLiteral("ditto"));
    moveEnvironment.copyTool = Mover::CopyTool::ditto();
    moveEnvironment.copyTool.executable = ditto.path();
    home.file(QStringLiteral("Pictures/album/one.jpg"), 2000);
    home.file(QStringLiteral("Pictures/album/two.jpg"), 3000);
    const QString album = home.path(QStringLiteral("Pictures/album"));

    ASSERT_EQ(moveItem(trashItem({album})), Mover::Outcome::moved(destination + QStringLiteral("/album")));
    EXPECT_TRUE(ditto.calls().value(0).startsWith(QStringLiteral("--noextattr --norsrc "))) << qPrintable(ditto.calls().join('\n'));
    EXPECT_EQ(QDir(destination + QStringLiteral("/album")).entryList(QDir::Files | QDir::Hidden),
              (QStringList{QStringLiteral("one.jpg"), QStringLiteral("two.jpg")}));

    // Kept as "._" files, the attributes make the copy differ, and the move is refused.
    home.file(QStringLiteral("Pictures/trip/three.jpg"), 1000);
    moveEnvironment.copyTool.withoutExtendedAttributes.clear();
    const Mover::Outcome refused = moveItem(trashItem({home.path(QStringLiteral("Pictures/trip"))}));
    EXPECT_TRUE(refused.reason.startsWith(QStringLiteral("The copy didn't match the original"))) << qPrintable(refused.reason);
    EXPECT_TRUE(QFileInfo::exists(home.path(QStringLiteral("Pictures/trip/three.jpg"))));
}

TEST_F(MoverFixture, DISABLED_OnExFatALinkThatCantBeCopiedLeavesNothing)
{
    if (!insideNamespace())
        GTEST_SKIP() << "runs inside the namespace made by MoverOnMountedDisks";
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    moveEnvironment.copyTool = scriptTool(QStringLiteral("cp -r -P -- \"$1\" \"$2\""));
    const Mover::Outcome outcome = moveItem(trashItem({project}));
    EXPECT_TRUE(outcome.reason.startsWith(QStringLiteral("Copy failed: "))) << qPrintable(outcome.reason);
    EXPECT_TRUE(destinationNames().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(project + QStringLiteral("/link")));
}

TEST_F(MoverFixture, DISABLED_OnASmallDiskThatFillsUpNothingIsLeft)
{
    if (!insideNamespace())
        GTEST_SKIP() << "runs inside the namespace made by MoverOnMountedDisks";
    for (int i = 0; i < 100; ++i)
        home.file(QStringLiteral("Notes/%1.txt").arg(i), 10);
    const QString notes = home.path(QStringLiteral("Notes"));
    const Mover::Outcome outcome = moveItem(trashItem({notes}));
    EXPECT_TRUE(outcome.reason.startsWith(QStringLiteral("Copy failed: "))) << qPrintable(outcome.reason);
    EXPECT_TRUE(outcome.reason.contains(QStringLiteral("No space left on device"))) << qPrintable(outcome.reason);
    EXPECT_TRUE(destinationNames().isEmpty());
    EXPECT_EQ(QDir(notes).entryList(QDir::Files).size(), 100);
}

TEST_F(MoverFixture, DISABLED_OnAReadOnlyDiskNothingStarts)
{
    if (!insideNamespace())
        GTEST_SKIP() << "runs inside the namespace made by MoverOnMountedDisks";
    const QString file = home.file(QStringLiteral("file.bin"), 10);
    expectUntouched(trashItem({file}), Mover::Reasons::destinationNotWritable());
}
