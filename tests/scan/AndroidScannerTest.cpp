#include "format/RelativeDate.h"
#include "actions/ToolStandIn.h"
#include "machinery/ToolLocations.h"
#include "scan/AndroidScanner.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

const QStringList psArguments = {QStringLiteral("-axww"), QStringLiteral("-o"), QStringLiteral("command=")};

// A home with three emulators (one without its settings file) and a Gradle cache; the process
// list shows two of the emulators running.
class AndroidScannerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        home.file(QStringLiteral(".android/avd/Pixel_7_API_34.avd/userdata-qemu.img"), 2'000'000);
        home.file(QStringLiteral(".android/avd/Pixel_7_API_34.ini"), 120);
        home.file(QStringLiteral(".android/avd/Small_Tablet.avd/config.ini"), 500'000);
        home.file(QStringLiteral(".android/avd/Small_Tablet.ini"), 120);
        home.file(QStringLiteral(".android/avd/Wear_OS_Round.avd/config.ini"), 4'000);
        home.file(QStringLiteral(".android/avd/notes.txt"), 10);
        home.file(QStringLiteral(".gradle/caches/modules-2/files.bin"), 3'000'000);
        ps.answerWithFixture(psArguments, QStringLiteral("ps/command-lines.txt"));
        environment.ps = ps.path();
        context.home = home.root();
        context.now = now;
    }

    ScanOutput scan() const { return AndroidScanner(environment).scan(context).at(CategoryID::android); }

    const CleanupItem& row(const ScanOutput& output, const QString& relative) const { return rowWithId(output.items, home.path(relative)); }

    // Status-change times can't be set back, so the scan happens three days after the files were made.
    QDateTime now = QDateTime::currentDateTimeUtc().addDays(3);
    TempTree home;
    ToolStandIn ps{QStringLiteral("canned-standin"), QStringLiteral("ps")};
    AndroidScanner::Environment environment;
    ScanContext context;
};

TEST_F(AndroidScannerTest, EmulatorsGoWithTheirSettingsFileBesideTheLocations)
{
    const ScanOutput output = scan();

    const CleanupItem& tablet = row(output, QStringLiteral(".android/avd/Small_Tablet.avd"));
    EXPECT_EQ(tablet.title, QStringLiteral("Small Tablet"));
    EXPECT_EQ(tablet.badge, QStringLiteral("Emulator"));
    EXPECT_EQ(RelativeDate::expand(tablet.detail, now), QStringLiteral("Android emulator with its apps and data · changed 3 days ago"));
    EXPECT_EQ(tablet.removal.paths(), (QStringList{home.path(QStringLiteral(".android/avd/Small_Tablet.avd")),
                                                   home.path(QStringLiteral(".android/avd/Small_Tablet.ini"))}));
    EXPECT_GE(tablet.size, 500'000);
    EXPECT_EQ(tablet.safety(home.root()), Safety::risky);
    EXPECT_FALSE(tablet.isLocked());

    EXPECT_EQ(output.items.size(), 4) << "three emulators and the Gradle cache; other files of the folder are no emulators";
    EXPECT_EQ(output.items.last().title, QStringLiteral("Gradle caches"));
}

TEST_F(AndroidScannerTest, RunningEmulatorsAreLocked)
{
    const ScanOutput output = scan();
    EXPECT_EQ(row(output, QStringLiteral(".android/avd/Pixel_7_API_34.avd")).lockedReason, QStringLiteral("Running. Quit it to remove it."));
    EXPECT_TRUE(row(output, QStringLiteral(".android/avd/Wear_OS_Round.avd")).isLocked());
    // Its settings file is gone, so only the folder is a target.
    EXPECT_EQ(row(output, QStringLiteral(".android/avd/Wear_OS_Round.avd")).removal.paths().size(), 1);
    EXPECT_EQ(AndroidScanner::avdNames(QStringLiteral("/usr/bin/vim -avd Not_An_Emulator\nqemu-system-x86_64 -avd\n")), QSet<QString>{})
        << "only emulator processes count, and a trailing -avd names nothing";
}

TEST_F(AndroidScannerTest, AnUnreadableProcessListLocksEveryEmulator)
{
    const auto allLocked = [this] {
        const ScanOutput output = scan();
        for (const CleanupItem& item : output.items) {
            const bool emulator = item.badge == QLatin1String("Emulator");
            EXPECT_TRUE(!emulator || item.isLocked()) << qPrintable(item.title);
        }
        EXPECT_TRUE(output.notes.isEmpty()) << "no message for it";
    };
    ps.answer(psArguments, QString(), 1, QStringLiteral("ps: Operation not permitted"));
    allLocked();
    environment.psTimeLimit = std::chrono::milliseconds(300);
    ps.hang(psArguments);
    allLocked();
    environment.ps = QStringLiteral("/nonexistent/ps");
    allLocked();
}

TEST_F(AndroidScannerTest, WithoutEmulatorsTheProcessListIsNotRead)
{
    ASSERT_FALSE(scan().items.isEmpty());
    EXPECT_EQ(ps.calls().size(), 1);
    TempTree bare;
    bare.file(QStringLiteral(".android/avd/notes.txt"), 10);
    context.home = bare.root();
    EXPECT_TRUE(scan().items.isEmpty());
    EXPECT_EQ(ps.calls().size(), 1) << "no emulator folder, no ps";
}

TEST(AndroidScannerRealTool, TheSystemsListAndItsPsBothShowARunningEmulator)
{
    // The system's own list (read in this process where it can be, else by ps) and ps itself
    // with the arguments both systems take: procps' ps must accept the BSD-style ones and print
    // whole command lines, however long.
    const QString name = QStringLiteral("Dustlark_Test_") + QString::number(QCoreApplication::applicationPid()) + QString(300, QLatin1Char('x'));
    QProcess emulator;
    emulator.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("read line"),
                                               QStringLiteral("emulator"), QStringLiteral("-avd"), name});
    ASSERT_TRUE(emulator.waitForStarted());
    const auto listed = AndroidScanner().runningAVDs();
    AndroidScanner::Environment byPs;
    byPs.ps = ToolLocations::standard({}).ps;
    const auto shownByPs = AndroidScanner(byPs).runningAVDs();
    emulator.closeWriteChannel();
    emulator.waitForFinished();
    ASSERT_TRUE(listed.has_value());
    EXPECT_TRUE(listed->contains(name));
    ASSERT_TRUE(shownByPs.has_value());
    EXPECT_TRUE(shownByPs->contains(name));
}

}  // namespace
