// A scan folder on another disk, through the model: /dev/shm is a file system of its own here.
// The model's real scan, remover and mover send what leaves that folder to that disk's own
// trash; nothing crosses to the home's.

#include "scan/ProjectScanner.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void writeFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << qPrintable(path);
}

std::optional<CleanupItem> rowOf(const AppModel& model, const QString& path)
{
    for (const CleanupItem& row : model.result(CategoryID::projects).items) {
        if (row.removal.paths() == QStringList{path})
            return row;
    }
    return std::nullopt;
}

// The names in `trash` whose records point below `place` (as the record writes it), taken out
// again so that the shared trash keeps nothing of the test.
QStringList takeTrashedFrom(const QString& trash, const QString& place)
{
    QStringList names;
    for (const QFileInfo& record : QDir(trash + QStringLiteral("/info")).entryInfoList({QStringLiteral("*.trashinfo")}, QDir::Files)) {
        QFile file(record.filePath());
        if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains("\nPath=" + QFile::encodeName(place) + '/'))
            continue;
        names.append(record.completeBaseName());
        QDir(trash + QStringLiteral("/files/") + record.completeBaseName()).removeRecursively();
        QFile::remove(record.filePath());
    }
    return names;
}

}  // namespace

TEST(ScanFolderOnAnotherDisk, CleansAndMovesIntoThatDisksTrash)
{
    TempTree home;
    QTemporaryDir disk(QStringLiteral("/dev/shm/dustlark-XXXXXX"));
    struct stat shm {}, ours {};
    if (!disk.isValid() || ::stat("/dev/shm", &shm) != 0 || ::stat(qPrintable(home.root()), &ours) != 0 || shm.st_dev == ours.st_dev)
        GTEST_SKIP() << "this test needs /dev/shm on a file system of its own";
    const QString work = disk.filePath(QStringLiteral("work"));
    for (const char* project : {"/shop", "/atlas"}) {
        writeFile(work + project + QStringLiteral("/package.json"), "{}");
        writeFile(work + project + QStringLiteral("/node_modules/left-pad/index.js"), QByteArray(5000, 'j'));
    }
    ModelFixture fixture({std::make_shared<ProjectScanner>(QStringList())}, home.root());
    fixture.settings().addRoot(work);
    AppModel& model = fixture.model();
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));

    const auto shop = rowOf(model, work + QStringLiteral("/shop/node_modules"));
    ASSERT_TRUE(shop) << model.result(CategoryID::projects).items.size();
    EXPECT_FALSE(shop->isLocked()) << "a scan folder on its own disk is offered";
    model.setSelected(*shop, true);
    model.prepareCleanup();
    ASSERT_TRUE(model.cleanup());
    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return model.cleanup()->phase() == CleanupSession::Phase::finished; }));
    EXPECT_TRUE(model.cleanup()->failures().isEmpty()) << qPrintable(model.cleanup()->failures().value(0).reason);
    model.closeCleanup();

    const auto atlas = rowOf(model, work + QStringLiteral("/atlas/node_modules"));
    ASSERT_TRUE(atlas);
    ASSERT_TRUE(model.startMove(*atlas, home.dir(QStringLiteral("Archive"))));
    ASSERT_TRUE(waitUntil([&] { return !model.moveSession()->isRunning(); }, 60'000));
    EXPECT_EQ(model.moveSession()->outcome()->kind, Mover::Outcome::Kind::moved) << qPrintable(model.moveSession()->outcome()->reason);

    const QString diskTrash = QStringLiteral("/dev/shm/.Trash-") + QString::number(::getuid());
    const QString homeTrash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Trash");
    EXPECT_TRUE(takeTrashedFrom(homeTrash, work).isEmpty()) << "crossed to the home's trash";
    EXPECT_EQ(takeTrashedFrom(diskTrash, work.mid(QStringLiteral("/dev/shm/").size())).size(), 2);
}
