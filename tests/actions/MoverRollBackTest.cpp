// A failed move takes back only what it made, and all of it, while someone swaps a folder of the
// copy for a link to a folder of the person's. Both places a roll-back removes from are raced:
// the work folder (the copy tool fails after copying) and a copy already put in place (the next
// part's name is taken). A few rounds here; DUSTLARK_STRESS_RUNS (e.g. 1000) makes it long.
#include "actions/MoverFixture.h"
#include "support/LinkSwapper.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

TEST_F(MoverFixture, RollBackWithAFolderOfTheCopySwappedForALinkLeavesTheDestinationAsItWas)
{
    const int runs = std::max(6, qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS"));
    for (int i = 0; i < 40; ++i)
        home.file(QStringLiteral("Documents/precious/f%1").arg(i), 10);
    const QString precious = home.path(QStringLiteral("Documents/precious"));
    const auto preciousBefore = snapshot(precious);
    const QString work = destination + QStringLiteral("/Dustlark unfinished move");
    for (int run = 0; run < runs; ++run) {
        const QString project = makeProject(QStringLiteral("Projects/atlas"));
        for (int i = 0; i < 200; ++i)
            home.file(QStringLiteral("Projects/atlas/src/part%1.c").arg(i), 100);
        const QString notes = home.file(QStringLiteral("Projects/notes.txt"), 10);
        const bool placed = run % 2 == 1;
        QString swapped;
        CleanupItem item;
        if (placed) {
            // "notes.txt" turns up in the destination while it is copied: "atlas" is in place by
            // then and must go again.
            item = trashItem({project, notes});
            moveEnvironment.copyTool = scriptTool(QStringLiteral(
                "case \"$2\" in *notes.txt) mkdir \"%1/notes.txt\";; esac; cp -a -T -- \"$1\" \"$2\"").arg(destination));
            swapped = destination + QStringLiteral("/atlas/src");
        } else {
            item = trashItem({project});
            moveEnvironment.copyTool = scriptTool(QStringLiteral(
                "cp -a -T -- \"$1\" \"$2\" && touch \"$2.copied\" && sleep 0.02; exit 1"));
            swapped = work + QStringLiteral("/atlas/src");
        }
        Mover::Outcome outcome;
        {
            const LinkSwapper swapper(swapped, precious, placed ? swapped : work + QStringLiteral("/atlas.copied"));
            outcome = moveItem(item);
        }
        EXPECT_EQ(outcome.kind, Mover::Outcome::Kind::failed) << "run " << run;
        const QStringList expected = placed ? QStringList{QStringLiteral("notes.txt")} : QStringList{};
        EXPECT_EQ(destinationNames(), expected) << "run " << run << "; the move said: " << qPrintable(outcome.reason);
        ASSERT_EQ(snapshot(precious), preciousBefore) << "run " << run;
        EXPECT_TRUE(QFileInfo::exists(project + QStringLiteral("/src/main.cpp"))) << "run " << run;
        QDir(destination).removeRecursively();
        QDir().mkpath(destination);
        QDir(project).removeRecursively();
    }
}
