// `dustlark-cli scan --record` and `history` over a fixture home with its own data folder: two
// recorded scans show what grew, a damaged history file is kept aside, and a full disk leaves
// the scan's report whole.
#include "support/PrivateMount.h"
#include "support/ProgramRun.h"
#include "support/TempTree.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// The report tool with its data folder in `dataHome`.
ProgramRun cli(const QStringList& arguments, const QString& dataHome)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
    return ProgramRun::run(QStringLiteral(DUSTLARK_CLI), arguments, 300'000, environment);
}

QJsonObject change(const QJsonArray& changes, const QString& category)
{
    for (const QJsonValue& value : changes) {
        if (value[QStringLiteral("category")].toString() == category)
            return value.toObject();
    }
    return {};
}

}  // namespace

TEST(HistoryCli, TwoRecordedScansReportWhatGrewInBetween)
{
    TempTree tree;
    const QString home = tree.dir("home");
    const QString data = tree.dir("data");
    tree.file("home/code/web/package.json", QByteArray("{}"));
    tree.file("home/code/web/node_modules/left-pad/index.js", 4000);
    tree.file("home/.npm/_cacache/index-v5/aa", 4000);

    const ProgramRun first = cli({"scan", "--home", home, "--record"}, data);
    ASSERT_EQ(first.exitCode, 0) << first.standardError.constData();
    EXPECT_TRUE(first.standardError.isEmpty()) << first.standardError.constData();
    const ProgramRun unrecorded = cli({"scan", "--home", home, "--category", "trash"}, data);
    ASSERT_EQ(unrecorded.exitCode, 0);

    tree.allocatedFile("home/code/web/node_modules/big/blob", 300'000'000);
    tree.allocatedFile("home/.npm/_cacache/content-v2/blob", 100'000'000);
    ASSERT_EQ(cli({"scan", "--home", home, "--record"}, data).exitCode, 0);

    // How growth is reckoned is HistoryGrowth's; here the tool hands the two recorded scans to it.
    const ProgramRun history = cli({"history", "--since", "last", "--json"}, data);
    ASSERT_EQ(history.exitCode, 0) << history.standardError.constData();
    const QJsonObject growth = QJsonDocument::fromJson(history.standardOutput).object();
    EXPECT_EQ(growth[QStringLiteral("scans")].toArray().size(), 2) << "the unrecorded scan is not kept";
    const QJsonArray categories = growth[QStringLiteral("categories")].toArray();
    EXPECT_GE(change(categories, QStringLiteral("projects"))[QStringLiteral("growth")].toInteger(), 300'000'000);
    EXPECT_GE(change(categories, QStringLiteral("packageCaches"))[QStringLiteral("growth")].toInteger(), 100'000'000);

    const QJsonArray kept = QJsonDocument::fromJson(cli({"history", "--json"}, data).standardOutput).object()[QStringLiteral("scans")].toArray();
    EXPECT_EQ(kept.size(), 2);
    EXPECT_TRUE(cli({"history", "--since", "yesterday"}, data).exitCode == 2);
}

TEST(HistoryCli, AGarbageHistoryFileIsKeptAsideAndANewOneStarted)
{
    TempTree tree;
    const QString home = tree.dir("home");
    const QString data = tree.dir("data");
    tree.file("data/Dustlark/history.sqlite", QByteArray(4096, '\x07'));

    const ProgramRun run = cli({"scan", "--home", home, "--category", "trash", "--record"}, data);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.standardError.contains("history.sqlite.damaged-")) << run.standardError.constData();
    EXPECT_EQ(QDir(data + "/Dustlark").entryList({"history.sqlite.damaged-*"}, QDir::Files).size(), 1);
    const QJsonArray kept = QJsonDocument::fromJson(cli({"history", "--json"}, data).standardOutput).object()[QStringLiteral("scans")].toArray();
    EXPECT_EQ(kept.size(), 1);
}

// The data folder is a tiny tmpfs, filled up before the scan.
TEST(HistoryCli, AFullDiskPrintsTheScanAndSaysTheHistoryWasNotSaved)
{
    TempTree tree;
    const QString home = tree.dir("home");
    tree.dir("data");
    const QString script = QStringLiteral(
        "mount -t tmpfs -o size=64k dustlark-test \"$1/data\" || exit 77; echo MOUNTED; "
        "mkdir -p \"$1/data/Dustlark\"; head -c 1000000 /dev/zero > \"$1/data/fill\" 2>/dev/null; "
        "XDG_DATA_HOME=\"$1/data\" \"$DUSTLARK_TEST_CLI\" scan --home \"$1/home\" --category trash --record --json "
        "> \"$1/out\" 2> \"$1/err\"; status=$?; "
        "echo \"REPORT exit=$status json=$(head -c 1 \"$1/out\") $(cat \"$1/err\")\"");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DUSTLARK_TEST_CLI"), QStringLiteral(DUSTLARK_CLI));
    const auto run = runInPrivateMount(script, tree.root(), environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);
    const QString report = run->report();
    EXPECT_TRUE(report.startsWith(QStringLiteral("exit=0 json={"))) << qPrintable(report) << qPrintable(run->output);
    EXPECT_TRUE(report.contains(QStringLiteral("The scan history couldn't be saved."))) << qPrintable(report);
}
