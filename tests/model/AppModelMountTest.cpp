// A scan folder on a second disk, through the model: a real tmpfs mounted beside the home folder
// in a private mount namespace (unshare(1)); the test binary re-runs itself there, scans, cleans
// and moves through the model with its real remover and mover, and prints what it saw.

#include "scan/ProjectScanner.h"
#include "support/ModelFixture.h"
#include "support/PrivateMount.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cstdio>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const char* const homeVariable = "DUSTLARK_MOUNTED_HOME";
const char* const diskVariable = "DUSTLARK_MOUNTED_DISK";

QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << qPrintable(path);
}

std::optional<CleanupItem> rowOf(const AppModel& model, CategoryID category, const QString& path)
{
    for (const CleanupItem& row : model.result(category).items) {
        if (row.removal.paths() == QStringList{path})
            return row;
    }
    return std::nullopt;
}

QString failuresOf(const CleanupSession& session)
{
    QStringList reasons;
    for (const CleanupSession::Failure& failure : session.failures())
        reasons.append(failure.reason);
    return reasons.join(QLatin1Char('|'));
}

}  // namespace

// The side that runs inside the namespace; disabled so that it runs only when asked for.
TEST(MountedScanFolder, DISABLED_ReportFromInsideTheNamespace)
{
    const QString home = qEnvironmentVariable(homeVariable);
    const QString disk = qEnvironmentVariable(diskVariable);
    if (home.isEmpty())
        GTEST_SKIP() << "runs only inside the mount namespace made by ScanFolderOnAnotherDisk.CleansAndMovesIntoThatDisksTrash";
    const QString work = disk + QStringLiteral("/work");
    writeFile(work + QStringLiteral("/shop/package.json"), "{}");
    writeFile(work + QStringLiteral("/shop/node_modules/left-pad/index.js"), QByteArray(5000, 'j'));
    writeFile(work + QStringLiteral("/atlas/package.json"), "{}");
    writeFile(work + QStringLiteral("/atlas/node_modules/react/index.js"), QByteArray(5000, 'r'));
    const QString destination = home + QStringLiteral("/Archive");
    QDir().mkpath(destination);

    ModelFixture fixture({std::make_shared<ProjectScanner>(QStringList())}, home);
    fixture.settings().addRoot(work);
    AppModel& model = fixture.model();
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));

    const auto shop = rowOf(model, CategoryID::projects, work + QStringLiteral("/shop/node_modules"));
    ASSERT_TRUE(shop) << model.result(CategoryID::projects).items.size();
    const bool offered = !shop->isLocked() && Selection::canSelect(*shop);
    model.setSelected(*shop, true);
    model.prepareCleanup();
    ASSERT_TRUE(model.cleanup());
    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return model.cleanup()->phase() == CleanupSession::Phase::finished; }));
    const QString cleanupFailures = failuresOf(*model.cleanup());
    model.closeCleanup();

    const auto atlas = rowOf(model, CategoryID::projects, work + QStringLiteral("/atlas/node_modules"));
    ASSERT_TRUE(atlas);
    ASSERT_TRUE(model.startMove(*atlas, destination));
    ASSERT_TRUE(waitUntil([&] { return !model.moveSession()->isRunning(); }, 60'000));
    const Mover::Outcome moved = *model.moveSession()->outcome();

    const QString trash = disk + QStringLiteral("/.Trash-") + QString::number(::getuid());
    const QString homeTrash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash/files");
    std::printf("REPORT offered=%d cleanup=[%s] move=[%s] trash=%s home-trash=%s\n", offered ? 1 : 0,
                qPrintable(cleanupFailures), qPrintable(moved.reason), qPrintable(entriesOf(trash + QStringLiteral("/files")).join(',')),
                qPrintable(entriesOf(homeTrash).join(',')));
    std::fflush(stdout);
}

TEST(ScanFolderOnAnotherDisk, CleansAndMovesIntoThatDisksTrash)
{
    TempTree tree;
    const QString home = tree.dir("home");
    const QString disk = tree.dir("disk");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(homeVariable, home);
    environment.insert(diskVariable, disk);
    const auto run = runOnPrivateTmpfs(disk, QStringLiteral("MountedScanFolder.*"), environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);

    // Both rows went to the second disk's own trash; nothing crossed to the home's.
    EXPECT_EQ(run->report().toStdString(), "offered=1 cleanup=[] move=[] trash=node_modules,node_modules.2 home-trash=")
        << qPrintable(run->output);
}
