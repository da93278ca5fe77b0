#include "actions/TargetCheck.h"
#include "scan/NewestChange.h"
#include "scan/TemporaryScanner.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"
#include "vocabulary/RemovalReasons.h"

#include <QFile>

#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 day = 86'400;

// A fixture with a system temporary folder "sys" and a home folder, both in one temporary tree.
class TemporaryScannerTest : public ::testing::Test {
protected:
    TemporaryScannerTest() : system(tree.dir(QStringLiteral("sys")))
    {
        context.home = tree.dir(QStringLiteral("home"));
    }

    // A file (or, with a trailing "/", a folder) whose newest change lies `days` in the past.
    QString aged(const QString& relative, double days) const
    {
        const QString path = relative.endsWith(QLatin1Char('/')) ? tree.dir(relative.chopped(1)) : tree.file(relative, 10);
        tree.setTimes(path.mid(tree.root().size() + 1), now() - qint64(days * day));
        return path;
    }

    qint64 now() const { return context.now.toSecsSinceEpoch(); }

    QList<CleanupItem> scanned() const
    {
        return TemporaryScanner(QStringList{system}).scan(context).at(CategoryID::temporary).items;
    }

    QStringList titles() const
    {
        QStringList found = titlesOf(scanned());
        found.sort();
        return found;
    }

    TempTree tree;
    QString system;
    ScanContext context;
};

}  // namespace

TEST_F(TemporaryScannerTest, SystemFoldersWaitThreeDaysAndOwnFoldersThirty)
{
    aged(QStringLiteral("sys/two-days.log"), 2);
    aged(QStringLiteral("sys/four-days.log"), 4);
    aged(QStringLiteral("home/tmp/ten-days.log"), 10);
    aged(QStringLiteral("home/tmp/thirty-one-days.log"), 31);

    EXPECT_EQ(titles(), QStringList({"four-days.log", "thirty-one-days.log"}));
    for (const CleanupItem& item : scanned()) {
        const bool inSystem = item.title == QLatin1String("four-days.log");
        EXPECT_EQ(item.badge, inSystem ? "System temp" : "Your temp folder");
        EXPECT_EQ(item.safety(context.home), inSystem ? Safety::safe : Safety::askAI);
        EXPECT_TRUE(item.detail.startsWith(QLatin1String("last changed "))) << qPrintable(item.detail);
    }
    EXPECT_EQ(TemporaryScanner(QStringList{system}).scan(context).at(CategoryID::temporary).summary,
              "Shown: system temp items untouched for 3+ days (many systems also clear /tmp when they restart) "
              "and items in your own temp folders untouched for 30+ days.");
}

TEST_F(TemporaryScannerTest, NeverOffersLinksHiddenSystemOrOtherUsersEntries)
{
    aged(QStringLiteral("sys/kept.log"), 9);
    aged(QStringLiteral("sys/com.apple.launchd.abc/"), 9);
    aged(QStringLiteral("sys/NSIRD_screencaptureui_x/"), 9);
    aged(QStringLiteral("sys/.X11-unix/"), 9);
    const QString target = aged(QStringLiteral("elsewhere.log"), 9);
    tree.symlink(QStringLiteral("sys/link.log"), target);
    tree.setTimes(QStringLiteral("sys/link.log"), now() - 9 * day);  // the link's own time
    const QString foreign = aged(QStringLiteral("sys/foreign.log"), 9);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(foreign).constData(), 65534, 65534), 0);
    }

    EXPECT_EQ(titles(), ::geteuid() == 0 ? QStringList({"kept.log"}) : QStringList({"foreign.log", "kept.log"}));
}

TEST_F(TemporaryScannerTest, BusyFoldersAreEnteredTwoLevelsDeep)
{
    aged(QStringLiteral("sys/a/b/c/d/old-at-four.log"), 9);
    aged(QStringLiteral("sys/a/b/old-at-three.log"), 9);
    aged(QStringLiteral("sys/a/b/c/new.log"), 0);
    aged(QStringLiteral("sys/a/b/c/"), 0);
    aged(QStringLiteral("sys/a/b/"), 0);
    aged(QStringLiteral("sys/a/"), 0);

    // a and a/b are entered; a/b/c lies three levels down, so it is neither entered nor old.
    EXPECT_EQ(titles(), QStringList({"old-at-three.log"}));
}

TEST_F(TemporaryScannerTest, SeveralOldFilesOfOneFolderShareARow)
{
    aged(QStringLiteral("sys/one.log"), 5);
    aged(QStringLiteral("sys/two.log"), 6);
    aged(QStringLiteral("sys/three.log"), 7);
    aged(QStringLiteral("sys/build-cache/"), 8);
    aged(QStringLiteral("sys/busy/lonely.log"), 5);
    aged(QStringLiteral("sys/busy/fresh.log"), 0);

    EXPECT_EQ(titles(), QStringList({"3 old files in sys", "build-cache", "lonely.log"}));
    for (const CleanupItem& item : scanned()) {
        if (!item.title.startsWith(QLatin1String("3 old")))
            continue;
        EXPECT_EQ(item.removal.paths().size(), 3);
        EXPECT_EQ(item.date->toSecsSinceEpoch(), now() - 5 * day);  // the newest of the three
        EXPECT_FALSE(item.removal.paths().contains(item.id));     // a group's id is no path of its own
    }
}

TEST_F(TemporaryScannerTest, AnEntryChangedAfterTheScanIsRefused)
{
    const QString folder = aged(QStringLiteral("sys/session/"), 9);
    aged(QStringLiteral("sys/session/state.json"), 9);
    tree.setTimes(QStringLiteral("sys/session"), now() - 9 * day);
    // The remover allows only the home folder, so the test's home holds the whole tree.
    RemovalEnvironment environment;
    environment.home = tree.root();
    const QList<CleanupItem> rows = scanned();
    ASSERT_EQ(rows.size(), 1);
    const FileTarget target = rows.first().removal.as<Removal::Trash>()->targets.first();
    EXPECT_EQ(TargetCheck::problem(target, environment), std::nullopt);

    tree.file(QStringLiteral("sys/session/state.json"), 99);
    tree.setTimes(QStringLiteral("sys/session/state.json"), now() - 9 * day);
    tree.setTimes(QStringLiteral("sys/session"), now() - 9 * day);
    EXPECT_EQ(TargetCheck::problem(target, environment), RemovalReasons::changedSinceScan()) << qPrintable(folder);
}

TEST_F(TemporaryScannerTest, SimulatorDevicesAreUnitsLockedWhileRunning)
{
    const QByteArray booted = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>state</key><integer>3</integer></dict></plist>";
    const QByteArray shutDown = "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>state</key><integer>1</integer></dict></plist>";
    tree.file(QStringLiteral("sys/Devices/A/device.plist"), booted);
    tree.file(QStringLiteral("sys/Devices/B/device.plist"), shutDown);
    for (const char* device : {"sys/Devices/A", "sys/Devices/B"}) {
        aged(QString::fromLatin1(device) + QStringLiteral("/data/old.db"), 9);
        aged(QString::fromLatin1(device) + QStringLiteral("/data/"), 9);
        tree.setTimes(QString::fromLatin1(device) + QStringLiteral("/device.plist"), now() - 9 * day);
        aged(QString::fromLatin1(device) + QLatin1Char('/'), 9);
    }
    aged(QStringLiteral("sys/Devices/new.log"), 0);  // keeps the set's folder busy, so it is entered

    QList<CleanupItem> rows = scanned();
    ASSERT_EQ(rows.size(), 2);
    std::sort(rows.begin(), rows.end(), [](const CleanupItem& a, const CleanupItem& b) { return a.id < b.id; });
    for (const CleanupItem& row : rows) {
        EXPECT_EQ(row.title, "Simulator device");
        EXPECT_EQ(row.badge, "Simulator device");
        EXPECT_EQ(row.detail, "temporary device set in " + row.id);
    }
    EXPECT_EQ(rows.at(0).lockedReason, "Running. Shut it down to remove it.");
    EXPECT_EQ(rows.at(1).lockedReason, std::nullopt);
}

TEST_F(TemporaryScannerTest, ClaudeCodeScratchEntriesAreTitledByProjectAndSession)
{
    const QString project = tree.dir(QStringLiteral("home/www/my-app"));
    QString encoded = project;
    encoded.replace(QLatin1Char('/'), QLatin1Char('-'));
    aged(QStringLiteral("sys/claude-0/") + encoded + QStringLiteral("/0f8e-session/scratchpad.md"), 9);
    aged(QStringLiteral("sys/claude-0/") + encoded + QStringLiteral("/0f8e-session/"), 9);
    aged(QStringLiteral("sys/claude-0/") + encoded + QStringLiteral("/tasks.log"), 0);
    aged(QStringLiteral("sys/claude-0/-gone-project/scratch.md"), 9);
    aged(QStringLiteral("sys/claude-0/-gone-project/"), 9);
    aged(QStringLiteral("sys/claude-1a2b-cwd"), 9);

    EXPECT_EQ(titles(), QStringList({"Claude Code session files · ~/www/my-app", "Claude Code temp files",
                                     "Claude Code temp files · /gone/project"}));
    for (const CleanupItem& row : scanned()) {
        EXPECT_EQ(row.badge, "Claude Code");
        const bool isSession = row.title.startsWith(QLatin1String("Claude Code session"));
        EXPECT_EQ(row.safety(context.home), isSession ? Safety::risky : Safety::safe) << qPrintable(row.title);
    }
    EXPECT_EQ(TemporaryScanner::claudeCodeTemp(QStringLiteral("claude-0/") + encoded, context.home)->detail,
              "Scratchpads and task output of this project's past sessions");
    EXPECT_EQ(TemporaryScanner::claudeCodeTemp(QStringLiteral("claude-0/") + encoded + QStringLiteral("/a/b"), context.home)->title,
              "Claude Code temp files");
    EXPECT_EQ(TemporaryScanner::claudeCodeTemp(QStringLiteral("build/claude-0"), context.home), std::nullopt);
}

TEST_F(TemporaryScannerTest, RootsAreRealFoldersTakenOnce)
{
    const QString home = context.home;
    tree.dir(QStringLiteral("home/tmp"));
    tree.dir(QStringLiteral("home/TMP"));  // a second folder on a volume that tells case apart
    tree.symlink(QStringLiteral("home/temp"), home + QStringLiteral("/tmp"));
    tree.symlink(QStringLiteral("home/Temp"), system);
    tree.file(QStringLiteral("sys-file"), 1);

    const QList<TemporaryScanner::Root> roots = TemporaryScanner::roots(
        {system, tree.path(QStringLiteral("missing")), tree.path(QStringLiteral("sys-file")), system + QStringLiteral("/.")},
        home);
    const QList<TemporaryScanner::Root> expected = {
        {system, true}, {home + QStringLiteral("/tmp"), false}, {home + QStringLiteral("/TMP"), false}};
    EXPECT_EQ(roots, expected);
}

TEST(NewestChange, FindsTheNewestTimeBelowAndGivesUpPastTheLimit)
{
    TempTree tree;
    tree.file(QStringLiteral("top/a/b/deep.txt"), 1);
    tree.file(QStringLiteral("top/shallow.txt"), 1);
    tree.file(QStringLiteral("outside.txt"), 1);
    tree.symlink(QStringLiteral("top/link"), tree.path(QStringLiteral("outside.txt")));
    for (const char* path : {"top/shallow.txt", "top/a/b", "top/a", "top", "top/link"})
        tree.setTimes(QString::fromLatin1(path), 1'000'000);
    tree.setTimes(QStringLiteral("top/a/b/deep.txt"), 2'000'000);
    tree.setTimes(QStringLiteral("outside.txt"), 3'000'000);  // behind a link: never looked at

    EXPECT_EQ(NewestChange::of(tree.path(QStringLiteral("top"))), 2'000'000);
    EXPECT_EQ(NewestChange::of(tree.path(QStringLiteral("top")), nullptr, 6), 2'000'000);
    EXPECT_EQ(NewestChange::of(tree.path(QStringLiteral("top")), nullptr, 5), std::nullopt);
    EXPECT_EQ(NewestChange::of(tree.path(QStringLiteral("missing"))), std::nullopt);
    tree.setTimes(QStringLiteral("outside.txt"), 0);
    EXPECT_EQ(NewestChange::of(tree.path(QStringLiteral("outside.txt"))), std::nullopt);  // no time after 1970
}

// Creating 300,000 files takes a while: run with DUSTLARK_STRESS=1.
TEST_F(TemporaryScannerTest, AFolderOfThreeHundredThousandEntriesIsNotOffered)
{
    if (qEnvironmentVariableIsEmpty("DUSTLARK_STRESS"))
        GTEST_SKIP() << "set DUSTLARK_STRESS=1 to build a folder of 300,000 entries";
    const QString huge = tree.dir(QStringLiteral("sys/huge"));
    const struct timespec old[2] = {{now() - 9 * day, 0}, {now() - 9 * day, 0}};
    for (int i = 0; i < 300'000; ++i) {
        const QByteArray name = QFile::encodeName(huge + QStringLiteral("/f%1").arg(i));
        QFile(QFile::decodeName(name)).open(QIODevice::WriteOnly);
        ::utimensat(AT_FDCWD, name.constData(), old, 0);
    }
    aged(QStringLiteral("sys/huge/"), 9);
    aged(QStringLiteral("sys/small/"), 9);

    EXPECT_EQ(titles(), QStringList({"small"}));
}
