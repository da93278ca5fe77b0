// dustlark-cli clean over fixture homes: the dry run lists what the real run removes, the real
// run goes through the remover into the real freedesktop trash, and bad input changes nothing.

#include "model/CleanupLock.h"
#include "model/StatsStore.h"
#include "support/ProgramRun.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <gtest/gtest.h>
#include <csignal>

namespace {

struct CliRun : ProgramRun {
    QJsonObject json() const { return QJsonDocument::fromJson(standardOutput).object(); }
    QJsonArray items() const { return json()[QStringLiteral("items")].toArray(); }
};

CliRun finish(QProcess& process)
{
    return {ProgramRun::finish(process)};
}

CliRun runCli(const QStringList& arguments)
{
    return {ProgramRun::run(QStringLiteral(DUSTLARK_CLI), arguments)};
}

QByteArray idsOf(const QJsonArray& items)
{
    QByteArray ids;
    for (const QJsonValue& item : items)
        ids += item[QStringLiteral("id")].toString().toUtf8() + '\n';
    return ids;
}

QStringList outcomesOf(const QJsonArray& items)
{
    QStringList outcomes;
    for (const QJsonValue& item : items)
        outcomes.append(item[QStringLiteral("outcome")].toString());
    outcomes.removeDuplicates();
    return outcomes;
}

QString trashFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash");
}

// The test program's tests share one data and settings folder: counts are compared before and after.
qsizetype trashedCount()
{
    return QDir(trashFolder() + QStringLiteral("/info")).entryList(QDir::Files).size();
}

qint64 recordedCleanups()
{
    QSettings settings(QStringLiteral("Dustlark"), QStringLiteral("Dustlark"));
    return StatsStore(&settings).stats().cleanups;
}

// Developers' projects, copies of two files and a project outside the home on its disk, whose
// row the app shows locked.
class CleanCli : public ::testing::Test {
protected:
    CleanCli() : home(tree.dir(QStringLiteral("home"))), outside(tree.dir(QStringLiteral("elsewhere")))
    {
        project(QStringLiteral("home/code/web"), 5'000);
        project(QStringLiteral("home/code/shop"), 400'000);
        project(QStringLiteral("elsewhere/legacy"), 5'000);
        // Made first, so they are the oldest copies of their groups.
        tree.file(QStringLiteral("home/docs/report.pdf"), 1'500'000, 'r');
        tree.file(QStringLiteral("home/pictures/b/photo.jpg"), 1'200'000, 'p');
        QThread::msleep(20);  // birth times come from a coarse clock: copies made in its tick would tie
        tree.file(QStringLiteral("home/backup/report.pdf"), 1'500'000, 'r');
        tree.file(QStringLiteral("home/mail/report.pdf"), 1'500'000, 'r');
        tree.file(QStringLiteral("home/pictures/a/photo.jpg"), 1'200'000, 'p');
    }

    void project(const QString& folder, qint64 size) const
    {
        tree.file(folder + QStringLiteral("/package.json"), QByteArray("{}"));
        tree.file(folder + QStringLiteral("/node_modules/left-pad/index.js"), size);
    }

    QStringList clean(const QStringList& more) const
    {
        return QStringList{QStringLiteral("clean"), QStringLiteral("--home"), home, QStringLiteral("--root"), home,
                           QStringLiteral("--root"), outside}
            + more;
    }

    TempTree tree;
    QString home;
    QString outside;
};

}  // namespace

TEST_F(CleanCli, TheDryRunListsExactlyWhatTheRealRunMovesToTheTrash)
{
    const QStringList categories = {"--category", "projects", "--category", "duplicates", "--json"};
    const qsizetype trashedBefore = trashedCount();
    const qint64 cleanupsBefore = recordedCleanups();
    const CliRun dry = runCli(clean(categories + QStringList{"--dry-run"}));
    ASSERT_EQ(dry.exitCode, 0) << dry.standardError.constData();
    EXPECT_TRUE(dry.json()[QStringLiteral("dryRun")].toBool());
    EXPECT_EQ(dry.json()[QStringLiteral("version")].toInt(), 1);
    EXPECT_EQ(outcomesOf(dry.items()), QStringList{"wouldMove"});
    QStringList expected = {tree.path("home/code/web/node_modules"), tree.path("home/code/shop/node_modules"),
                            tree.path("home/backup/report.pdf"), tree.path("home/mail/report.pdf"),
                            tree.path("home/pictures/a/photo.jpg")};
    QStringList listed = QString::fromUtf8(idsOf(dry.items())).split('\n', Qt::SkipEmptyParts);
    expected.sort();
    listed.sort();
    EXPECT_EQ(listed, expected);
    for (const QString& path : expected)
        EXPECT_TRUE(QFileInfo::exists(path)) << "the dry run removed " << qPrintable(path);

    const CliRun real = runCli(clean(categories + QStringList{"--yes"}));
    ASSERT_EQ(real.exitCode, 0) << real.standardError.constData() << real.standardOutput.constData();
    EXPECT_FALSE(real.json()[QStringLiteral("dryRun")].toBool());
    EXPECT_EQ(idsOf(real.items()), idsOf(dry.items()));
    EXPECT_EQ(outcomesOf(real.items()), QStringList{"moved"});
    EXPECT_EQ(real.json()[QStringLiteral("failed")].toInt(), 0);
    EXPECT_EQ(real.json()[QStringLiteral("freed")].toDouble(), dry.json()[QStringLiteral("freed")].toDouble());
    for (const QString& path : expected)
        EXPECT_FALSE(QFileInfo::exists(path)) << qPrintable(path);
    for (const char* kept : {"home/docs/report.pdf", "home/pictures/b/photo.jpg", "elsewhere/legacy/node_modules"})
        EXPECT_TRUE(QFileInfo::exists(tree.path(kept))) << kept;

    // Nothing is left to pick: the remaining copies are lone, the locked project stays.
    const CliRun again = runCli(clean(categories + QStringList{"--yes"}));
    EXPECT_EQ(again.exitCode, 3) << again.standardOutput.constData();
    EXPECT_TRUE(again.items().isEmpty());

    EXPECT_EQ(trashedCount() - trashedBefore, expected.size());

    // Recorded as the app records a cleanup, so the Overview shows it.
    EXPECT_EQ(recordedCleanups() - cleanupsBefore, 1);
    QSettings settings(QStringLiteral("Dustlark"), QStringLiteral("Dustlark"));
    const StatsStore stats(&settings);
    ASSERT_FALSE(stats.stats().history.isEmpty());
    EXPECT_EQ(stats.stats().history.first().items, expected.size());
    EXPECT_EQ(stats.stats().history.first().movedToTrash, qint64(real.json()[QStringLiteral("freed")].toDouble()));
}

// The app keeps its statistics open while the tool records a cleanup into them; the app's next
// record keeps the tool's.
TEST_F(CleanCli, TheAppsNextRecordKeepsTheToolsCleanup)
{
    QSettings settings(QStringLiteral("Dustlark"), QStringLiteral("Dustlark"));
    StatsStore app(&settings);
    settings.sync();  // as the app's event loop does soon after every change
    const qint64 before = app.stats().cleanups;
    const CliRun run = runCli(clean({"--category", "projects", "--yes"}));
    ASSERT_EQ(run.exitCode, 0) << run.standardError.constData();
    app.recordCleanup(1000, 0, 1);
    EXPECT_EQ(app.stats().cleanups, before + 2);
    EXPECT_EQ(app.stats().history.value(1).items, 2);
}

TEST_F(CleanCli, FiltersPickRowsBySizeIdDateAndLabel)
{
    for (const char* path : {"home/code/web/package.json", "home/code/web/node_modules/left-pad/index.js",
                             "home/code/web/node_modules/left-pad", "home/code/web/node_modules", "home/code/web"})
        tree.setTimes(QString::fromLatin1(path), 1'600'000'000);
    const QStringList projects = {"--category", "projects", "--dry-run", "--json"};
    const auto ids = [&](const QStringList& filters) {
        const CliRun run = runCli(clean(projects + filters));
        return QString::fromUtf8(idsOf(run.items())).trimmed() + QStringLiteral(" exit ") + QString::number(run.exitCode);
    };
    const QString web = tree.path("home/code/web/node_modules");
    const QString shop = tree.path("home/code/shop/node_modules");

    EXPECT_EQ(ids({"--min-size", "100000"}), shop + " exit 0");
    EXPECT_EQ(ids({"--older-than", "30"}), web + " exit 0");
    EXPECT_EQ(ids({"--id", web}), web + " exit 0");
    EXPECT_EQ(ids({"--safety", "risky"}), " exit 3");
    EXPECT_EQ(ids({"--min-size", "100000", "--older-than", "30"}), " exit 3");

    const CliRun unknown = runCli(clean(projects + QStringList{"--id", "/no/such/row", "--id", shop}));
    EXPECT_EQ(unknown.exitCode, 0);
    EXPECT_EQ(idsOf(unknown.items()), shop.toUtf8() + '\n');
    EXPECT_TRUE(unknown.standardError.contains("/no/such/row")) << unknown.standardError.constData();
}

// The table says what would go with each row's badge, and the sum with the count.
TEST_F(CleanCli, TheTableNamesEveryRowAndTheTotal)
{
    const CliRun run = runCli(clean({"--category", "duplicates", "--dry-run"}));
    ASSERT_EQ(run.exitCode, 0) << run.standardError.constData();
    const QStringList lines = QString::fromUtf8(run.standardOutput).split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4) << run.standardOutput.constData();
    EXPECT_TRUE(lines[0].contains(QStringLiteral("wouldMove"))) << qPrintable(lines[0]);
    EXPECT_EQ(lines.last(), QStringLiteral("Would free 4.2 MB from 3 items."));
}

// Every verb's bad input, clean's included, exits 2 with one line and changes nothing.
TEST_F(CleanCli, BadInputExitsTwoWithOneLineAndChangesNothing)
{
    const QString file = tree.file(QStringLiteral("notes.txt"), 10);
    const QList<QStringList> bad = {
        clean({"--category", "projects", "--yes", "--dry-run"}),
        clean({"--category", "projects", "--older-than", "-3", "--yes"}),
        clean({"--category", "projects", "--min-size", "lots", "--yes"}),
        clean({"--category", "projects", "--safety", "Safe", "--yes"}),
        clean({"--category", "projects"}),
        clean({"--yes"}),
        clean({"--category", "project", "--yes"}),
        clean({"--category", "projects", "--yes", "--home", "/nonexistent"}),
        {}, {"clean"}, {"scan", "--bogus"}, {"scan", "--category", "PackageCaches"}, {"scan", "--home"},
        {"scan", "--home", "/nonexistent"}, {"scan", "--home", file}, {"scan", "--root", tree.path("missing")},
        {"storage", "--home", "/nonexistent"}, {"storage", "--root", "/tmp"}, {"--version", "--json"},
    };
    const qsizetype trashedBefore = trashedCount();
    for (const QStringList& arguments : bad) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 2) << qPrintable(arguments.join(' '));
        EXPECT_TRUE(run.standardOutput.isEmpty()) << qPrintable(arguments.join(' '));
        EXPECT_EQ(run.standardError.trimmed().count('\n'), 0) << run.standardError.constData();
    }
    EXPECT_TRUE(QFileInfo::exists(tree.path("home/code/web/node_modules")));
    EXPECT_EQ(trashedCount(), trashedBefore);
}

// While another cleanup holds the lock (here this test, as the app would), clean refuses or,
// with --wait, waits; Ctrl-C while it waits stops it with nothing removed.
TEST_F(CleanCli, NeverRemovesWhileAnotherCleanupDoes)
{
    QString reason;
    auto other = CleanupLock::acquire(CleanupLock::defaultPath(), &reason);
    ASSERT_TRUE(other) << qPrintable(reason);
    const QStringList arguments = {"--category", "projects", "--yes", "--json"};

    const CliRun refused = runCli(clean(arguments));
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_EQ(refused.standardError.trimmed(), CleanupLock::busyReason().toUtf8());

    QProcess waiting;
    waiting.setReadChannel(QProcess::StandardError);
    waiting.start(QStringLiteral(DUSTLARK_CLI), clean(arguments + QStringList{"--wait"}));
    for (int second = 0; second < 60 && !waiting.readAllStandardError().contains("Waiting"); ++second)
        waiting.waitForReadyRead(1'000);
    ASSERT_EQ(waiting.state(), QProcess::Running) << "clean --wait did not wait";
    ::kill(static_cast<pid_t>(waiting.processId()), SIGINT);
    const CliRun stopped = finish(waiting);
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_EQ(outcomesOf(stopped.items()), QStringList{"skipped"});
    EXPECT_EQ(stopped.items().size(), 2);
    EXPECT_TRUE(QFileInfo::exists(tree.path("home/code/web/node_modules")));
    EXPECT_TRUE(QFileInfo::exists(tree.path("home/code/shop/node_modules")));

    other.reset();
    const CliRun turn = runCli(clean(arguments + QStringList{"--wait"}));
    EXPECT_EQ(turn.exitCode, 0) << turn.standardError.constData();
    EXPECT_FALSE(QFileInfo::exists(tree.path("home/code/web/node_modules")));
}

TEST(ReportHelp, ThePageNamesEveryVerbOptionAndCategory)
{
    for (const QStringList& arguments : {QStringList{"--help"}, QStringList{"help"}, QStringList{"clean", "--help"}}) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_TRUE(run.standardError.isEmpty());
        for (const char* word : {"scan", "storage", "clean", "--dry-run", "--yes", "--permanent", "--older-than", "--min-size",
                                 "--safety", "--id", "--root", "--home", "--json", "packageCaches", "duplicates", "trash"})
            EXPECT_TRUE(run.standardOutput.contains(word)) << word;
    }
    const CliRun unknown = runCli({"scan", "--category", "caches"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE(unknown.standardError.contains("packageCaches, editors")) << unknown.standardError.constData();
}
