// What a move proves before the original goes: the copy's bytes as the destination disk gives
// them back, and the original as it was when the copy was checked, up to and through the Trash.
// The races run a few rounds here; DUSTLARK_STRESS_RUNS (e.g. 1000) makes them long.
#include "actions/MoverFixture.h"
#include "actions/MoverReasons.h"
#include "machinery/Fingerprint.h"
#include "support/FileLook.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

int stressRuns(int normal)
{
    return std::max(normal, qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS"));
}

}  // namespace

class MoverVerify : public MoverFixture {
protected:
    // A copy tool that copies, then changes one byte of `file` in the copy and puts its
    // modification time back: size and times say nothing.
    static Mover::CopyTool corruptingTool(const QString& file, qint64 offset)
    {
        return scriptTool(QStringLiteral(
            "cp -a -T -- \"$1\" \"$2\" && printf '\\377' | dd of=\"$2%1\" bs=1 seek=%2 conv=notrunc 2>/dev/null"
            " && touch -r \"$1%1\" \"$2%1\"").arg(file).arg(offset));
    }

    // Clears the home, the destination and the Trash between rounds of a race.
    void clearRound(const QString& project) const
    {
        QDir(project).removeRecursively();
        QDir(destination + QStringLiteral("/atlas")).removeRecursively();
        QDir(trashFolder()).removeRecursively();
    }
};

// A file target is the root of its copy (a folder's files are MoverToolFault's and the random
// rounds below).
TEST_F(MoverVerify, ACorruptedCopyOfAFileTargetLeavesEverythingAsItWas)
{
    const QString video = home.file(QStringLiteral("Downloads/video.mov"), 5000, 'v');
    const QString footage = makeProject(QStringLiteral("Downloads/footage"));
    moveEnvironment.copyTool = scriptTool(QStringLiteral(
        "cp -a -T -- \"$1\" \"$2\" && case \"$2\" in *.mov) printf '\\377' | dd of=\"$2\" bs=1 seek=0 conv=notrunc"
        " 2>/dev/null && touch -r \"$1\" \"$2\";; esac"));
    expectUntouched(trashItem({video, footage}), Mover::Reasons::copyReadBackWrong());
}

TEST_F(MoverVerify, AScannedStampThatNoLongerHoldsRefusesBeforeAnythingIsCopied)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    CleanupItem item = trashItem({project});
    QList<FileTarget> targets = item.removal.as<Removal::Trash>()->targets;
    targets[0].tree = Fingerprint::compute(project);
    item.removal = Removal::trash(targets);
    home.file(QStringLiteral("Projects/atlas/new.txt"), 3);
    // A copy tool that leaves a mark shows whether the copy even started.
    moveEnvironment.copyTool = scriptTool(QStringLiteral("touch \"%1/copied\"; cp -a -T -- \"$1\" \"$2\"").arg(destination));
    expectUntouched(item, RemovalReasons::changedSinceScan());
}

// The remover's last look passed; then, before the rename, a file of the original is edited. The
// move can't undo that, but it must say where the edit now is.
TEST_F(MoverVerify, AnOriginalEditedBetweenTheLastLookAndTheTrashIsNamedWhereItIs)
{
    const QString project = makeProject(QStringLiteral("Projects/atlas"));
    const auto before = snapshot(project);
    const TrashOperation trash = moveEnvironment.removal.trash;
    moveEnvironment.removal.trash = [&](const TrashRequest& request) {
        home.file(QStringLiteral("Projects/atlas/readme.md"), QByteArray("# notes, edited\n"));
        return trash(request);
    };

    const Mover::Outcome outcome = moveItem(trashItem({project}));

    const QString copy = destination + QStringLiteral("/atlas");
    const QString inTrash = trashFolder() + QStringLiteral("/files/atlas");
    EXPECT_EQ(outcome, Mover::Outcome::changedLate(copy, Mover::Reasons::changedAfterCheck(copy, {inTrash})));
    EXPECT_FALSE(outcome.succeeded());
    EXPECT_TRUE(outcome.originalTrashed());
    EXPECT_EQ(contentOf(inTrash + QStringLiteral("/readme.md")), "# notes, edited\n");
    EXPECT_EQ(snapshot(copy), before);
}

// Copies corrupted after copying, at a random byte of a random file, size and times kept: no
// original may go to the Trash, and the destination must be as it was.
TEST_F(MoverVerify, CorruptedCopiesNeverSendTheOriginalToTheTrash)
{
    const QString files[] = {QStringLiteral("/src/main.cpp"), QStringLiteral("/readme.md"),
                             QStringLiteral("/src/Ünïcode näme.txt")};
    std::mt19937 random(20261126);
    const int runs = stressRuns(3);
    int trashed = 0;
    int leftInDestination = 0;
    for (int run = 0; run < runs; ++run) {
        const QString project = makeProject(QStringLiteral("Projects/atlas"));
        const QString& file = files[random() % std::size(files)];
        moveEnvironment.copyTool = corruptingTool(file, qint64(random() % QFileInfo(project + file).size()));
        const Mover::Outcome outcome = moveItem(trashItem({project}));
        EXPECT_EQ(outcome, Mover::Outcome::failed(Mover::Reasons::copyReadBackWrong())) << "run " << run;
        trashed += !trashedNames().isEmpty() || !FileStatus::exists(project);
        leftInDestination += !destinationNames().isEmpty();
        clearRound(project);
    }
    EXPECT_EQ(trashed, 0) << "of " << runs;
    EXPECT_EQ(leftInDestination, 0) << "of " << runs;
}

// A file of the original is rewritten 0-60 ms (0-6 ms in a short run) after the copy was checked (from the moment the
// copy is in place). Each move must either keep the original where it is with the edit, or say
// that the edit is in the Trash and where; a plain "moved" is right only when the rewrite found
// the file gone.
TEST_F(MoverVerify, LateRewritesAreRefusedOrReportedNeverPlainlyDone)
{
    std::mt19937 random(20261127);
    const int runs = stressRuns(5);
    // The remover's part takes a few milliseconds here; a few rounds aim inside it.
    const unsigned window = runs > 5 ? 60'000 : 6'000;
    for (int run = 0; run < runs; ++run) {
        const QString project = makeProject(QStringLiteral("Projects/atlas"));
        const QByteArray edit = QByteArray("edited in run ") + QByteArray::number(run);
        const auto delay = std::chrono::microseconds(random() % window);
        std::atomic<bool> finished{false};
        std::atomic<bool> wrote{false};
        std::thread rewriter([&] {
            while (!finished && !FileStatus::exists(destination + QStringLiteral("/atlas")))
                std::this_thread::sleep_for(std::chrono::microseconds(50));
            if (finished)
                return;
            std::this_thread::sleep_for(delay);
            const int fd = ::open(QFile::encodeName(project + QStringLiteral("/src/main.cpp")).constData(), O_WRONLY | O_TRUNC);
            if (fd < 0)
                return;
            wrote = ::write(fd, edit.constData(), size_t(edit.size())) == edit.size();
            ::close(fd);
        });
        const Mover::Outcome outcome = moveItem(trashItem({project}));
        finished = true;
        rewriter.join();

        if (outcome.kind == Mover::Outcome::Kind::failed) {
            EXPECT_TRUE(!wrote || contentOf(project + QStringLiteral("/src/main.cpp")) == edit) << "run " << run;
        } else if (outcome.kind == Mover::Outcome::Kind::changedLate) {
            const QString inTrash = trashFolder() + QStringLiteral("/files/atlas");
            EXPECT_TRUE(outcome.reason.contains(inTrash)) << qPrintable(outcome.reason);
            EXPECT_EQ(contentOf(inTrash + QStringLiteral("/src/main.cpp")), edit) << "run " << run;
        } else {
            EXPECT_FALSE(wrote) << "run " << run << ": reported done while the edit went to the Trash";
        }
        clearRound(project);
    }
}
