#include "format/RelativeDate.h"
#include "actions/ToolStandIn.h"
#include "scan/SimulatorScanner.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"
#include "vocabulary/SimulatorLastUse.h"

#include <QFile>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

const QStringList listDevices = {QStringLiteral("simctl"), QStringLiteral("list"), QStringLiteral("devices"), QStringLiteral("--json")};
const QStringList listRuntimes = {QStringLiteral("simctl"), QStringLiteral("runtime"), QStringLiteral("list"), QStringLiteral("--json")};
const QString iPhone15 = QStringLiteral("sim:device:5D3F2A10-7C1B-4E0A-9B7E-1F2C3D4E5F60");
const QString iPad = QStringLiteral("sim:device:A1B2C3D4-0000-4000-8000-00000000BEEF");
const QString iOS17 = QStringLiteral("sim:runtime:C8E1F3A2-4B5D-4C6E-8F70-9A1B2C3D4E5F");
const QString watchOS10 = QStringLiteral("sim:runtime:3A5C7E9F-2B4D-4F6A-8C0E-1D3F5B7A9C2E");

QString fixture(const QString& name)
{
    QFile file(QStringLiteral(DUSTLARK_FIXTURES "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Xcode selected, two runtimes installed (one bundled with Xcode) and one gone, devices on
// the installed one and on the gone one; the devices' data folders are real folders.
class SimulatorScannerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        xcodeSelect.answer({QStringLiteral("-p")}, fixture(QStringLiteral("xcode-select/print-path.txt")));
        xcrun.answer(listDevices, fixture(QStringLiteral("simctl/scan-devices.json")).replace(QStringLiteral("@HOME@"), home.root()));
        xcrun.answerWithFixture(listRuntimes, QStringLiteral("simctl/scan-runtimes.json"));
        home.file(QStringLiteral("Library/Developer/CoreSimulator/Devices/5D3F2A10-7C1B-4E0A-9B7E-1F2C3D4E5F60/data/app.db"), 300'000);
        environment.xcrun = xcrun.path();
        environment.xcodeSelect = xcodeSelect.path();
        context.home = home.root();
        context.now = QDateTime::fromString(QStringLiteral("2024-06-02T12:00:00Z"), Qt::ISODate);
    }

    ScanOutput scan() const { return SimulatorScanner(environment).scanSimulators(context); }

    static const CleanupItem& row(const ScanOutput& output, const QString& id) { return rowWithId(output.items, id); }

    ToolStandIn xcrun{QStringLiteral("xcrun-standin"), QStringLiteral("xcrun")};
    ToolStandIn xcodeSelect{QStringLiteral("canned-standin"), QStringLiteral("xcode-select")};
    TempTree home;
    SimulatorScanner::Environment environment;
    ScanContext context;
};

TEST_F(SimulatorScannerTest, WithoutAFullXcodeOnlyTheNoteAndNoSimulatorTool)
{
    xcodeSelect.answer({QStringLiteral("-p")}, fixture(QStringLiteral("xcode-select/print-path-command-line-tools.txt")));
    const ScanOutput expected{{}, {QStringLiteral("Xcode isn't installed, so there are no simulators to manage.")}, {}};
    EXPECT_EQ(scan(), expected);
    environment.xcodeSelect = QStringLiteral("/nonexistent/xcode-select");  // as on Linux
    EXPECT_EQ(scan(), expected);
    EXPECT_TRUE(xcrun.calls().isEmpty());
}

TEST_F(SimulatorScannerTest, DeviceRowsCarryTheirRuntimeUseAndLock)
{
    const ScanOutput output = scan();
    EXPECT_TRUE(output.notes.isEmpty()) << qPrintable(output.notes.join(QLatin1Char('\n')));

    const CleanupItem& phone = row(output, iPhone15);
    EXPECT_EQ(phone.title, QStringLiteral("iPhone 15"));
    EXPECT_EQ(phone.badge, QStringLiteral("Device"));
    EXPECT_EQ(RelativeDate::expand(phone.detail, context.now), QStringLiteral("removing it keeps iOS 17.5 · used last month"));
    EXPECT_GE(phone.size, 300'000) << "the data folder measured on disk, not the tool's figure";
    EXPECT_LT(phone.size, 2'147'483'648);
    EXPECT_FALSE(phone.isLocked());
    EXPECT_EQ(phone.safety(home.root()), Safety::askAI);

    const CleanupItem& tablet = row(output, iPad);
    EXPECT_EQ(tablet.lockedReason, QStringLiteral("Running. Shut it down to remove it."));
    // The removal carries the exact instant the scan saw, so a later use is noticed.
    EXPECT_EQ(tablet.removal, (Removal{Removal::SimulatorDevice{QStringLiteral("A1B2C3D4-0000-4000-8000-00000000BEEF"),
                                                                QDateTime::fromString(QStringLiteral("2024-06-01T17:40:02.250Z"), Qt::ISODateWithMs)}}));

    // Devices of a runtime that is gone say why they can't run.
    const CleanupItem& withReason = row(output, QStringLiteral("sim:device:0E9D8C7B-6A5F-4E3D-2C1B-0A9F8E7D6C5B"));
    EXPECT_EQ(withReason.badge, QStringLiteral("Unavailable"));
    EXPECT_EQ(withReason.detail, QStringLiteral("removing it keeps iOS 16.4 · never used · can't run: its iOS is gone "
                                                "(runtime profile not found using \"System\" match policy)"));
    const CleanupItem& withoutReason = row(output, QStringLiteral("sim:device:7F0E1D2C-3B4A-4958-8776-655443322110"));
    EXPECT_EQ(withoutReason.detail, QStringLiteral("removing it keeps iOS 16.4 · never used · can't run: its iOS is gone (runtime is missing)"));
    EXPECT_EQ(withoutReason.size, 0) << "neither a data folder nor a size";
    EXPECT_EQ(output.items.size(), 7) << "four devices (one without a udid skipped) and three runtimes";
}

TEST_F(SimulatorScannerTest, RuntimeRowsAndTheirLocks)
{
    const ScanOutput output = scan();

    const CleanupItem& iOS = row(output, iOS17);
    EXPECT_EQ(iOS.title, QStringLiteral("iOS 17.5 runtime"));
    EXPECT_EQ(iOS.badge, QStringLiteral("Runtime"));
    EXPECT_EQ(iOS.size, 7'423'467'520);
    EXPECT_EQ(RelativeDate::expand(iOS.detail, context.now), QStringLiteral("Build 21F79 · used 18 hours ago · 2 devices stop working without it; getting it back is a 7.42 GB download"));
    EXPECT_EQ(iOS.lockedReason, QStringLiteral("A simulator on it is running. Shut it down to remove it."));
    EXPECT_EQ(iOS.removal, (Removal{Removal::SimulatorRuntime{QStringLiteral("C8E1F3A2-4B5D-4C6E-8F70-9A1B2C3D4E5F")}}));

    const CleanupItem& watch = row(output, watchOS10);
    EXPECT_EQ(watch.detail, QStringLiteral("Build 21T575 · no devices use it"));
    EXPECT_EQ(watch.lockedReason, QStringLiteral("Installed with Xcode; remove it in Xcode Settings › Components."));

    const CleanupItem& custom = row(output, QStringLiteral("sim:runtime:E2D4C6B8-A0F1-4E3D-9C5B-7A8F6E4D2C1B"));
    EXPECT_EQ(custom.title, QStringLiteral("Simulator 2.0 runtime"));
    EXPECT_FALSE(custom.isLocked());
}

TEST_F(SimulatorScannerTest, AnUnreadableDeviceListLeavesOnlyANote)
{
    const auto noteOnly = [this](const QString& reason) {
        const ScanOutput output = scan();
        EXPECT_TRUE(output.items.isEmpty());
        EXPECT_EQ(output.notes, QStringList{QStringLiteral("Couldn't list simulator devices: ") + reason});
    };
    xcrun.answer(listDevices, QStringLiteral("{\"devices\" : {\"com.apple.CoreSimulator.SimRuntime.iOS-17-5\" : [ {\"udid\""));
    noteOnly(QStringLiteral("The tool's answer isn't valid JSON."));
    xcrun.answer(listDevices, QString(), 1, QStringLiteral("An error was encountered processing the command (domain=com.apple.CoreSimulator.SimError, code=405)"));
    noteOnly(QStringLiteral("An error was encountered processing the command (domain=com.apple.CoreSimulator.SimError, code=405)"));
    environment.listTimeLimit = std::chrono::milliseconds(300);
    xcrun.hang(listDevices);
    noteOnly(QStringLiteral("The tool didn't answer in time."));
}

TEST_F(SimulatorScannerTest, AnUnreadableRuntimeListKeepsTheDevices)
{
    xcrun.answer(listRuntimes, QStringLiteral("not json"));
    const ScanOutput output = scan();
    EXPECT_EQ(output.notes, QStringList{QStringLiteral("Couldn't list simulator runtimes: The tool's answer isn't valid JSON.")});
    EXPECT_EQ(output.items.size(), 4);
    EXPECT_EQ(RelativeDate::expand(row(output, iPhone15).detail, context.now), QStringLiteral("removing it keeps iOS 17.5 · used last month"));
}

// Devices as Xcode 15 and 16 really print them: the last use is "lastBootedAt", absent for a
// device never booted.
TEST_F(SimulatorScannerTest, RealDeviceListsOfXcode15And16DateDevicesByTheirLastBoot)
{
    const auto usedDate = [](const CleanupItem& item) { return item.removal.as<Removal::SimulatorDevice>()->lastUsed; };
    const auto at = [](const char* text) { return QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate); };

    xcrun.answerWithFixture(listDevices, QStringLiteral("simctl/xcode15-devices.json"));
    context.now = at("2024-03-06T12:00:00Z");
    ScanOutput output = scan();
    const CleanupItem& booted = row(output, QStringLiteral("sim:device:2C4E6A8B-1D3F-4A5B-9C7D-0E1F2A3B4C5D"));
    EXPECT_EQ(booted.date, at("2024-02-06T14:21:07Z"));
    EXPECT_EQ(usedDate(booted), at("2024-02-06T14:21:07Z"));
    EXPECT_EQ(RelativeDate::expand(booted.detail, context.now), QStringLiteral("removing it keeps iOS 17.2 · used last month"));
    const CleanupItem& neverBooted = row(output, QStringLiteral("sim:device:6B8D0F2A-4C6E-4E8A-A1C3-5D7F9B1D3F5A"));
    EXPECT_EQ(neverBooted.date, std::nullopt);
    EXPECT_EQ(usedDate(neverBooted), std::nullopt);
    EXPECT_TRUE(neverBooted.detail.endsWith(QStringLiteral("never used"))) << qPrintable(neverBooted.detail);
    EXPECT_EQ(row(output, QStringLiteral("sim:device:9E1A3C5E-7A9C-4B1D-8E3F-5A7C9E1B3D5F")).date, at("2023-12-19T08:02:55Z"));

    xcrun.answerWithFixture(listDevices, QStringLiteral("simctl/xcode16-devices.json"));
    output = scan();
    EXPECT_EQ(row(output, QStringLiteral("sim:device:4F6A8C0E-2B4D-4F6A-B8C0-E2A4C6E8A0B2")).date, at("2025-03-11T09:47:31Z"));
    EXPECT_EQ(row(output, QStringLiteral("sim:device:C2E4A6C8-0E2A-4C6E-A0C2-4E6A8C0E2A4C")).date, at("2024-09-30T16:05:12Z"));
    EXPECT_EQ(row(output, QStringLiteral("sim:device:8A0C2E4A-6C8E-4A0C-92E4-A6C8E0A2C4E6")).date, std::nullopt);
}

// Where a device carries both names the later date counts, whichever field holds it.
TEST(SimulatorLastUse, ReadsTheLastBootAndTheDocumentedNameTakingTheLater)
{
    const auto device = [](const char* json) { return QJsonDocument::fromJson(json).object(); };
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"lastBootedAt": "2024-02-06T14:21:07Z"})")), QStringLiteral("2024-02-06T14:21:07Z"));
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"lastUsedAt": "2024-02-06T14:21:07.5Z"})")), QStringLiteral("2024-02-06T14:21:07.5Z"));
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"lastBootedAt": "2024-02-06T14:21:07Z", "lastUsedAt": "2024-03-01T00:00:00Z"})")),
              QStringLiteral("2024-03-01T00:00:00Z"));
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"lastBootedAt": "2024-04-06T14:21:07Z", "lastUsedAt": "2024-03-01T00:00:00Z"})")),
              QStringLiteral("2024-04-06T14:21:07Z"));
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"lastBootedAt": "yesterday", "lastUsedAt": 5})")), std::nullopt);
    EXPECT_EQ(SimulatorLastUse::ofDevice(device(R"({"state": "Shutdown"})")), std::nullopt);
}

TEST(SimulatorRuntimeName, FromTheIdentifiersLastComponent)
{
    EXPECT_EQ(SimulatorScanner::runtimeName(QStringLiteral("com.apple.CoreSimulator.SimRuntime.iOS-17-5")), QStringLiteral("iOS 17.5"));
    EXPECT_EQ(SimulatorScanner::runtimeName(QStringLiteral("com.apple.CoreSimulator.SimRuntime.watchOS-10-5")), QStringLiteral("watchOS 10.5"));
    EXPECT_EQ(SimulatorScanner::runtimeName(QStringLiteral("com.apple.CoreSimulator.SimRuntime.iOS-18-0-1")), QStringLiteral("iOS 18.0.1"));
    EXPECT_FALSE(SimulatorScanner::runtimeName(QStringLiteral("com.example.CustomRuntime")).has_value());
    EXPECT_FALSE(SimulatorScanner::runtimeName(QStringLiteral("com.apple.CoreSimulator.SimRuntime.iOS-beta")).has_value());
}

}  // namespace
