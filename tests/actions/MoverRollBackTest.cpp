// A failed move takes back only what it made, and all of it, while someone swaps a folder of the
// copy for a link to a folder of the person's. Both places a roll-back removes from are raced:
// the work folder (the copy tool fails after copying) and a copy already put in place (the next
// part's name is taken). A few rounds here; DUSTLARK_STRESS_RUNS (e.g. 1000) makes it long.
#include "actions/MoverFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

bool exists(const QByteArray& path)
{
    struct stat info {};
    return ::lstat(path.constData(), &info) == 0;
}

// Swaps `folder` for a link to `target` and back, as fast as it can, from the moment `signal`
// appears until it is told to end.
class Swapper {
public:
    Swapper(const QString& signal, const QString& folder, const QString& target)
        : m_signal(QFile::encodeName(signal)), m_folder(QFile::encodeName(folder)),
          m_aside(QFile::encodeName(folder + QStringLiteral(".aside"))), m_target(QFile::encodeName(target)),
          m_thread([this] { run(); }) {}

    ~Swapper()
    {
        m_end = true;
        m_thread.join();
    }

    int swaps() const { return m_swaps; }

private:
    void run()
    {
        while (!m_end && !exists(m_signal))
            std::this_thread::yield();
        while (!m_end) {
            if (::rename(m_folder.constData(), m_aside.constData()) != 0)
                continue;
            ::symlink(m_target.constData(), m_folder.constData());
            ++m_swaps;
            std::this_thread::yield();
            ::unlink(m_folder.constData());
            ::rename(m_aside.constData(), m_folder.constData());
        }
    }

    QByteArray m_signal, m_folder, m_aside, m_target;
    std::atomic<bool> m_end{false};
    std::atomic<int> m_swaps{0};
    std::thread m_thread;
};

}  // namespace

TEST_F(MoverFixture, RollBackWithAFolderOfTheCopySwappedForALinkLeavesTheDestinationAsItWas)
{
    const int runs = std::max(6, qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS"));
    for (int i = 0; i < 40; ++i)
        home.file(QStringLiteral("Documents/precious/f%1").arg(i), 10);
    const QString precious = home.path(QStringLiteral("Documents/precious"));
    const auto preciousBefore = snapshot(precious);
    const QString work = destination + QStringLiteral("/Dustlark unfinished move");
    int raced = 0;
    int leftSomething = 0;
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
            const Swapper swapper(placed ? swapped : work + QStringLiteral("/atlas.copied"), swapped, precious);
            outcome = moveItem(item);
            raced += swapper.swaps() > 0;
        }
        EXPECT_EQ(outcome.kind, Mover::Outcome::Kind::failed) << "run " << run;
        const QStringList expected = placed ? QStringList{QStringLiteral("notes.txt")} : QStringList{};
        if (destinationNames() != expected) {
            ++leftSomething;
            ADD_FAILURE() << "run " << run << " left " << qPrintable(destinationNames().join(QLatin1Char(',')))
                          << "; the move said: " << qPrintable(outcome.reason);
        }
        ASSERT_EQ(snapshot(precious), preciousBefore) << "run " << run;
        EXPECT_TRUE(QFileInfo::exists(project + QStringLiteral("/src/main.cpp"))) << "run " << run;
        QDir(destination).removeRecursively();
        QDir().mkpath(destination);
        QDir(project).removeRecursively();
    }
    std::printf("%d roll-backs, %d raced by the swapper, %d left something in the destination\n", runs, raced, leftSomething);
}
