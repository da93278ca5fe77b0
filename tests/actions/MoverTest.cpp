// Moves to a real second file system (/dev/shm) with the real copy tool and the real
// freedesktop trash; faults of the copy tool are played by small shell scripts.
#include "actions/MoverFiles.h"
#include "actions/MoverFixture.h"
#include "actions/ToolStandIn.h"
#include "actions/MoverReasons.h"

#include <QDir>
#include <QFile>

#include <atomic>
#include <unistd.h>

namespace {

const QString workFolder = QStringLiteral("Dustlark unfinished move");

}  // namespace

TEST_F(MoverFixture, CopiesVerifiesAndOnlyThenTrashesTheOriginal)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    const auto before = snapshot(project);
    qint64 lastCopied = -1;
    qint64 lastTotal = -1;

    const Mover::Outcome outcome = moveItem(trashItem({project}), [&](qint64 copied, qint64 total) {
        EXPECT_GE(copied, lastCopied) << "progress went backwards";
        lastCopied = copied;
        lastTotal = total;
    });

    const QString copy = destination + QStringLiteral("/atlas");
    ASSERT_EQ(outcome, Mover::Outcome::moved(copy));
    EXPECT_EQ(snapshot(copy), before);
    EXPECT_EQ(destinationNames(), QStringList{QStringLiteral("atlas")});
    EXPECT_FALSE(QFileInfo::exists(project));
    EXPECT_EQ(trashedNames(), QStringList{QStringLiteral("atlas")});
    EXPECT_EQ(lastCopied, lastTotal);
    EXPECT_EQ(lastTotal, 2 * 70'000 + 8 + 7) << "files and their bytes, each hard link counted";
}

TEST_F(MoverFixture, MovesEveryTargetOfAnItemAndNamesTheFolder)
{
    const QString file = home.file(QStringLiteral("Downloads/video.mov"), 5000);
    const QString folder = makeProject(QStringLiteral("Downloads/footage"));
    const auto folderBefore = snapshot(folder);

    ASSERT_EQ(moveItem(trashItem({file, folder})), Mover::Outcome::moved(destination));
    EXPECT_EQ(snapshot(destination + QStringLiteral("/footage")), folderBefore);
    EXPECT_EQ(QFileInfo(destination + QStringLiteral("/video.mov")).size(), 5000);
    EXPECT_EQ(trashedNames().size(), 2);
}

TEST_F(MoverFixture, DestinationChecksRefuseBeforeAnythingIsCopied)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    const CleanupItem item = trashItem({project});
    const QString file = home.file(QStringLiteral("file.txt"), 10);
    EXPECT_EQ(Mover::problem(destination, item), std::nullopt);
    EXPECT_EQ(Mover::problem(destination + QStringLiteral("/missing"), item), Mover::Reasons::destinationUnavailable());
    EXPECT_EQ(Mover::problem(file, item), Mover::Reasons::destinationUnavailable());
    EXPECT_EQ(Mover::problem(home.dir(QStringLiteral("Elsewhere")), item),
              QStringLiteral("That folder is on the same disk, so moving there frees no space. Choose another disk."));
    EXPECT_EQ(Mover::problem(project + QStringLiteral("/src"), item), Mover::Reasons::insideItself());

    QDir(destination).mkdir(QStringLiteral("atlas"));
    expectUntouched(item, QStringLiteral("“atlas” already exists in that folder."));
}

TEST_F(MoverFixture, TwoPartsWhoseNamesDifferOnlyInCaseAreRefused)
{
    const QString upper = home.file(QStringLiteral("one/Data"), 10);
    const QString lower = home.file(QStringLiteral("two/data"), 20);
    expectUntouched(trashItem({upper, lower}),
                    QStringLiteral("Two parts of it are named “Data”, so they can't go into one folder."));
}

TEST_F(MoverFixture, RefusesWhatIsNotFilesOrDoesNotFit)
{
    CleanupItem docker;
    docker.removal = Removal::docker(DockerOperation{DockerOperation::BuildCache{}});
    EXPECT_EQ(moveItem(docker), Mover::Outcome::failed(Mover::Reasons::onlyFilesAndFolders()));

    // Sizes are the files' lengths, so a sparse file needs its full length on a disk without holes.
    const qint64 length = 10'000'000'000'000;
    const QString huge = home.sparseFile(QStringLiteral("disk.img"), length);
    const qint64 free = Mover::Files::freeBytes(destination).value_or(0);
    EXPECT_EQ(moveItem(trashItem({huge})), Mover::Outcome::failed(Mover::Reasons::notEnoughSpace(length, free)));
    EXPECT_EQ(QFileInfo(huge).size(), length);
    EXPECT_TRUE(destinationNames().isEmpty());
    EXPECT_EQ(Mover::Reasons::notEnoughSpace(12'000'000'000, 3'000'000'000),
              QStringLiteral("Not enough space on that disk: 12 GB needed, 3 GB free."));
}

TEST_F(MoverFixture, ALeftoverWorkFolderIsNeitherUsedNorRemoved)
{
    const QString leftover = destination + QLatin1Char('/') + workFolder;
    QDir().mkpath(leftover + QStringLiteral("/photos"));
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    expectUntouched(trashItem({project}), Mover::Reasons::leftoverWorkFolder());
    EXPECT_TRUE(QFileInfo::exists(leftover + QStringLiteral("/photos")));
}

TEST_F(MoverFixture, AnUnreadableFileInsideRefusesTheMove)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    home.file(QStringLiteral("Projects/atlas/secret/key"), 10);
    ::chmod(QFile::encodeName(home.path(QStringLiteral("Projects/atlas/secret"))).constData(), 0);
    ::chmod(QFile::encodeName(destination).constData(), 0777);
    const CleanupItem item = trashItem({project});
    const std::optional<QByteArray> reason = home.runUnprivileged([&] {
        return moveItem(item).reason.toUtf8();
    });
    ::chmod(QFile::encodeName(home.path(QStringLiteral("Projects/atlas/secret"))).constData(), 0700);
    ASSERT_TRUE(reason.has_value()) << "could not run as an ordinary user";
    EXPECT_EQ(QString::fromUtf8(*reason), Mover::Reasons::unreadable());
    EXPECT_TRUE(destinationNames().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(project));
}

// Each row is a copy tool gone wrong; every one must leave the original and the destination as
// they were, with no work folder behind.
struct ToolFault {
    const char* name;
    const char* script;
    const char* reason;
};

class MoverToolFault : public MoverFixture, public ::testing::WithParamInterface<ToolFault> {};

TEST_P(MoverToolFault, LeavesEverythingAsItWas)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    moveEnvironment.copyTool = scriptTool(QString::fromUtf8(GetParam().script));
    expectUntouched(trashItem({project}), QString::fromUtf8(GetParam().reason));
}

INSTANTIATE_TEST_SUITE_P(Mover, MoverToolFault, ::testing::Values(
    ToolFault{"fails", "cp -a -T -- \"$1\" \"$2\"; echo 'cp: error writing: Input/output error' >&2; exit 1",
              "Copy failed: cp: error writing: Input/output error"},
    ToolFault{"isKilled", "mkdir \"$2\"; kill -9 $$", "Copy failed: Exit code 9"},
    ToolFault{"dropsAFile", "cp -a -T -- \"$1\" \"$2\" && rm \"$2/readme.md\"",
              "The copy didn't match the original (3 of 4 files). The original wasn't changed."},
    ToolFault{"truncatesAFile", "cp -a -T -- \"$1\" \"$2\" && truncate -s 10 \"$2/src/main.cpp\"",
              "The copy didn't match the original (4 of 4 files). The original wasn't changed."},
    // What a failing disk does: other bytes under the same size and times.
    ToolFault{"corruptsAByteKeepingSizeAndTime",
              "cp -a -T -- \"$1\" \"$2\" && printf z | dd of=\"$2/src/main.cpp\" bs=1 seek=69999 conv=notrunc 2>/dev/null"
              " && touch -r \"$1/src/main.cpp\" \"$2/src/main.cpp\"",
              "The copy on that disk couldn't be read back correctly, so it was removed. The original wasn't changed."}),
    [](const ::testing::TestParamInfo<ToolFault>& info) { return std::string(info.param.name); });

// A destination that keeps extended attributes (a tmpfs here, APFS on a Mac) gets them copied.
TEST_F(MoverFixture, DittoKeepsExtendedAttributesWhereTheDestinationHoldsThem)
{
    const ToolStandIn ditto(QStringLiteral("ditto-standin"), QStringLiteral("ditto"));
    moveEnvironment.copyTool = Mover::CopyTool::ditto();
    moveEnvironment.copyTool.executable = ditto.path();
    const QString clip = home.file(QStringLiteral("Movies/clip.mov"), 4000);

    ASSERT_EQ(moveItem(trashItem({clip})), Mover::Outcome::moved(destination + QStringLiteral("/clip.mov")));
    ASSERT_EQ(ditto.calls().size(), 1);
    EXPECT_FALSE(ditto.calls()[0].contains(QStringLiteral("--noextattr"))) << qPrintable(ditto.calls()[0]);
    EXPECT_EQ(destinationNames(), QStringList{QStringLiteral("clip.mov")});
}

TEST_F(MoverFixture, AMissingCopyToolChangesNothing)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    moveEnvironment.copyTool.executable = QStringLiteral("/nonexistent/ditto");
    expectUntouched(trashItem({project}), QStringLiteral("Copy failed: No such file or directory"));
}

TEST_F(MoverFixture, AFileEditedDuringTheCopyKeepsTheOriginalWhereItIs)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    // The edit lands after the copy of that file, and the copy even takes the new content along:
    // only the original's second fingerprint can see it.
    moveEnvironment.copyTool = scriptTool(QStringLiteral(
        "cp -a -T -- \"$1\" \"$2\" && echo more >> \"$1/readme.md\" && cp -p \"$1/readme.md\" \"$2/readme.md\""));
    EXPECT_EQ(moveItem(trashItem({project})), Mover::Outcome::failed(
        QStringLiteral("The original changed while it was copied. Nothing was changed; try again.")));
    QFile readme(project + QStringLiteral("/readme.md"));
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    EXPECT_EQ(readme.readAll(), "# notes\nmore\n");
    EXPECT_TRUE(destinationNames().isEmpty());
    EXPECT_TRUE(trashedNames().isEmpty());
}

TEST_F(MoverFixture, ANameThatAppearsDuringTheCopyIsNeverReplaced)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    // An empty folder is what a plain rename would silently replace.
    moveEnvironment.copyTool = scriptTool(QStringLiteral("cp -a -T -- \"$1\" \"$2\" && mkdir \"%1/atlas\"").arg(destination));
    EXPECT_EQ(moveItem(trashItem({project})), Mover::Outcome::failed(Mover::Reasons::nameTaken(QStringLiteral("atlas"))));
    EXPECT_EQ(snapshot(destination + QStringLiteral("/atlas")).keys(), QStringList{QString()}) << "theirs was replaced";
    EXPECT_EQ(destinationNames(), QStringList{QStringLiteral("atlas")});
    EXPECT_TRUE(QFileInfo::exists(project));
}

TEST_F(MoverFixture, StopInTheMiddleEndsTheToolAndRemovesThePartialCopy)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    CancellationToken stop;
    moveEnvironment.removal.cancellation = &stop;
    // Copies, then hangs as a slow disk would; the stop must end it and its child.
    moveEnvironment.copyTool = scriptTool(QStringLiteral("cp -a -T -- \"$1\" \"$2\"; sleep 60"));
    expectUntouched(trashItem({project}), Mover::Reasons::stopped(), [&](qint64 copied, qint64) {
        if (copied > 0)
            stop.cancel();
    });
}

TEST_F(MoverFixture, AFailedTrashLeavesTheVerifiedCopyAndSaysSo)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    const auto before = snapshot(project);
    moveEnvironment.removal.trash = [](const TrashRequest&) { return TrashResult{std::nullopt, QStringLiteral("The Trash is full"), false, false}; };

    const Mover::Outcome outcome = moveItem(trashItem({project}));
    EXPECT_TRUE(outcome.reason.startsWith(QStringLiteral("Copied and verified, but the original couldn't go to the Trash: ")))
        << qPrintable(outcome.reason);
    EXPECT_EQ(snapshot(project), before);
    EXPECT_EQ(snapshot(destination + QStringLiteral("/atlas")), before);
    EXPECT_EQ(destinationNames(), QStringList{QStringLiteral("atlas")});
}
