#include "scan/DevicesScanner.h"
#include "support/TempTree.h"

#include <QFile>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace {

const QString backups = QStringLiteral("home/Library/Application Support/MobileSync/Backup/");

class DevicesScannerTest : public ::testing::Test {
protected:
    DevicesScannerTest()
    {
        context.home = tree.dir(QStringLiteral("home"));
        tree.file(QStringLiteral("home/Library/iTunes/iPhone Software Updates/iPhone15,2_17.4_Restore.ipsw"), 2'000'000);
        // Finder's own binary Info.plist, with the device's name and the last backup's date.
        const QString named = tree.dir(backups + QStringLiteral("00008110-A"));
        QFile::copy(QStringLiteral(DUSTLARK_FIXTURES "/plists/BackupInfo.plist"), named + QStringLiteral("/Info.plist"));
        tree.file(backups + QStringLiteral("00008110-A/Manifest.db"), 50'000);
        tree.file(backups + QStringLiteral("00008110-B/Info.plist"),
                  QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                             "<key>Display Name</key><string>Work iPad</string></dict></plist>"));
        tree.file(backups + QStringLiteral("00008110-C/Manifest.db"), 1'000);  // no Info.plist at all
        tree.file(backups + QStringLiteral("00008110-D/Info.plist"), QByteArray("bplist00 broken"));
    }

    ScanOutput scanned() const { return DevicesScanner().scan(context).at(CategoryID::devices); }

    TempTree tree;
    ScanContext context;
};

}  // namespace

TEST_F(DevicesScannerTest, BackupsAreTitledFromTheirInfoAndUpdatesFromTheTable)
{
    const ScanOutput output = scanned();
    ASSERT_EQ(output.items.size(), 5);
    const CleanupItem& update = output.items.at(0);
    EXPECT_EQ(update.title, "iPhone15,2_17.4_Restore.ipsw");
    EXPECT_EQ(update.detail, "Downloaded iPhone update; Finder downloads it again when needed");
    EXPECT_EQ(update.safety(context.home), Safety::safe);

    const CleanupItem& named = output.items.at(1);
    EXPECT_EQ(named.title, QStringLiteral("Anna’s iPhone"));
    EXPECT_EQ(named.badge, "Backup");
    EXPECT_EQ(named.date, QDateTime(QDate(2024, 3, 5), QTime(10, 0), QTimeZone::utc()));
    EXPECT_TRUE(named.detail.startsWith(QLatin1String("backed up "))) << qPrintable(named.detail);
    EXPECT_EQ(named.safety(context.home), Safety::risky);
    EXPECT_GE(named.size, 50'000);

    const QStringList otherTitles = {output.items.at(2).title, output.items.at(3).title, output.items.at(4).title};
    EXPECT_EQ(otherTitles, QStringList({"Work iPad", "iPhone or iPad backup", "iPhone or iPad backup"}));
    for (qsizetype i = 2; i < 5; ++i)
        EXPECT_EQ(output.items.at(i).detail, "date unknown");
    EXPECT_TRUE(output.notes.isEmpty());
}

TEST_F(DevicesScannerTest, WithoutFullDiskAccessBackupsGiveWayToANote)
{
    context.fullDiskAccess = false;
    const ScanOutput output = scanned();
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(output.items.first().title, "iPhone15,2_17.4_Restore.ipsw");
    EXPECT_EQ(output.notes, QStringList({"Device backups can be listed only with Full Disk Access."}));
}
