// clean with a scan folder on a second disk: a real tmpfs mounted beside the home folder in a
// private mount namespace; the test program re-runs itself there and runs dustlark-cli clean,
// which must move the rows into that disk's own trash, as the app's cleanup does.

#include "support/FileLook.h"
#include "support/PrivateMount.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const char* const homeVariable = "DUSTLARK_CLEAN_HOME";
const char* const diskVariable = "DUSTLARK_CLEAN_DISK";

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << qPrintable(path);
}

}  // namespace

// The side that runs inside the namespace; disabled so that it runs only when asked for.
TEST(MountedCleanFolder, DISABLED_ReportFromInsideTheNamespace)
{
    const QString home = qEnvironmentVariable(homeVariable);
    const QString disk = qEnvironmentVariable(diskVariable);
    if (home.isEmpty())
        GTEST_SKIP() << "runs only inside the mount namespace made by CleanOnAnotherDisk.MovesIntoThatDisksTrash";
    const QString work = disk + QStringLiteral("/work");
    writeFile(work + QStringLiteral("/shop/package.json"), "{}");
    writeFile(work + QStringLiteral("/shop/node_modules/left-pad/index.js"), QByteArray(5000, 'j'));
    writeFile(home + QStringLiteral("/code/web/package.json"), "{}");
    writeFile(home + QStringLiteral("/code/web/node_modules/react/index.js"), QByteArray(5000, 'r'));

    QProcess cli;
    cli.start(QStringLiteral(DUSTLARK_CLI), {"clean", "--home", home, "--root", home, "--root", work, "--category", "projects",
                                             "--yes", "--json"});
    cli.waitForFinished(120'000);
    QStringList outcomes;
    for (const QJsonValue& item : QJsonDocument::fromJson(cli.readAllStandardOutput()).object()[QStringLiteral("items")].toArray())
        outcomes.append(item[QStringLiteral("outcome")].toString() + QLatin1Char(':') + item[QStringLiteral("reason")].toString());

    const QString trash = disk + QStringLiteral("/.Trash-") + QString::number(::getuid());
    const QString homeTrash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash/files");
    std::printf("REPORT exit=%d outcomes=%s disk-trash=%s home-trash=%s\n", cli.exitCode(), qPrintable(outcomes.join(',')),
                qPrintable(entriesOf(trash + QStringLiteral("/files")).join(',')), qPrintable(entriesOf(homeTrash).join(',')));
    std::fflush(stdout);
}

TEST(CleanOnAnotherDisk, MovesIntoThatDisksTrash)
{
    TempTree tree;
    const QString home = tree.dir("home");
    const QString disk = tree.dir("disk");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(homeVariable, home);
    environment.insert(diskVariable, disk);
    const auto run = runInPrivateMount(QStringLiteral("mount -t tmpfs dustlark-test \"$1\" || exit 77; echo MOUNTED; "
                                                      "exec \"$2\" --gtest_also_run_disabled_tests --gtest_filter=MountedCleanFolder.*"),
                                       disk, environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);

    // The home's row went to the home's trash, the second disk's row to that disk's own.
    EXPECT_EQ(run->report().toStdString(), "exit=0 outcomes=moved:,moved: disk-trash=node_modules home-trash=node_modules")
        << qPrintable(run->output);
}
