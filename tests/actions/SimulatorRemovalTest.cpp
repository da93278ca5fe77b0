#include "actions/Remover.h"
#include "actions/ToolStandIn.h"
#include "vocabulary/RemovalReasons.h"

#include <gtest/gtest.h>

namespace {

const QString idleDevice = QStringLiteral("5D3F2A10-7C1B-4E0A-9B7E-1F2C3D4E5F60");
const QString bootedDevice = QStringLiteral("A1B2C3D4-0000-4000-8000-00000000BEEF");
const QString runtimeWithBootedDevice = QStringLiteral("C8E1F3A2-4B5D-4C6E-8F70-9A1B2C3D4E5F");
const QString idleRuntime = QStringLiteral("2F4E6A8C-1B3D-4F5A-9C7E-0D2B4F6A8C1E");
const QStringList listDevices{QStringLiteral("simctl"), QStringLiteral("list"), QStringLiteral("devices"), QStringLiteral("--json")};
const QStringList listRuntimes{QStringLiteral("simctl"), QStringLiteral("runtime"), QStringLiteral("list"), QStringLiteral("--json")};

class SimulatorRemovalTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        environment.tools.xcrun = xcrun.path();
        xcrun.answerWithFixture(listDevices, QStringLiteral("simctl/devices.json"));
        xcrun.answerWithFixture(listRuntimes, QStringLiteral("simctl/runtimes.json"));
    }

    RemovalOutcome remove(Removal removal) const
    {
        CleanupItem item;
        item.category = CategoryID::simulators;
        item.removal = std::move(removal);
        return Remover::remove(item, environment);
    }
    RemovalOutcome removeDevice(const QString& udid, const QString& lastUsed) const
    {
        return remove(Removal{Removal::SimulatorDevice{udid, QDateTime::fromString(lastUsed, Qt::ISODate)}});
    }
    RemovalOutcome removeRuntime(const QString& id) const { return remove(Removal{Removal::SimulatorRuntime{id}}); }
    bool deleted(const QString& tail) const
    {
        return xcrun.calls().contains(QStringLiteral("simctl ") + tail);
    }

    ToolStandIn xcrun{QStringLiteral("xcrun-standin"), QStringLiteral("xcrun")};
    RemovalEnvironment environment;
};

TEST_F(SimulatorRemovalTest, DeletesAnIdleDeviceThatWasNotUsedSinceTheScan)
{
    xcrun.answer({QStringLiteral("simctl"), QStringLiteral("delete"), idleDevice}, {});
    EXPECT_EQ(removeDevice(idleDevice, QStringLiteral("2024-06-01T09:12:44Z")), RemovalOutcome::removedByTool());
    EXPECT_TRUE(deleted(QStringLiteral("delete ") + idleDevice));
}

TEST_F(SimulatorRemovalTest, RefusesARunningUsedOrVanishedDevice)
{
    EXPECT_EQ(removeDevice(bootedDevice, QStringLiteral("2024-06-03T17:40:02Z")),
              RemovalOutcome::failed(QStringLiteral("Running. Shut it down to remove it.")));
    EXPECT_EQ(removeDevice(idleDevice, QStringLiteral("2024-05-20T10:00:00Z")),
              RemovalOutcome::failed(RemovalReasons::changedSinceScan()));
    EXPECT_EQ(removeDevice(QStringLiteral("00000000-DEAD-4000-8000-000000000000"), QStringLiteral("2024-06-01T09:12:44Z")),
              RemovalOutcome::failed(RemovalReasons::noLongerExists()));
    for (const QString& call : xcrun.calls())
        EXPECT_FALSE(call.startsWith(QStringLiteral("simctl delete"))) << qPrintable(call);
}

// Xcode 16 prints a device's last use as "lastBootedAt": a boot after the scan refuses.
TEST_F(SimulatorRemovalTest, ComparesTheLastBootTheRealToolPrints)
{
    const QString device = QStringLiteral("C2E4A6C8-0E2A-4C6E-A0C2-4E6A8C0E2A4C");
    xcrun.answerWithFixture(listDevices, QStringLiteral("simctl/xcode16-devices.json"));
    xcrun.answer({QStringLiteral("simctl"), QStringLiteral("delete"), device}, {});
    EXPECT_EQ(removeDevice(device, QStringLiteral("2024-09-01T08:00:00Z")), RemovalOutcome::failed(RemovalReasons::changedSinceScan()));
    EXPECT_FALSE(deleted(QStringLiteral("delete ") + device));
    EXPECT_EQ(removeDevice(device, QStringLiteral("2024-09-30T16:05:12Z")), RemovalOutcome::removedByTool());
    EXPECT_TRUE(deleted(QStringLiteral("delete ") + device));
}

TEST_F(SimulatorRemovalTest, DeletesARuntimeOnlyWhileNoSimulatorOnItRuns)
{
    EXPECT_EQ(removeRuntime(runtimeWithBootedDevice),
              RemovalOutcome::failed(QStringLiteral("A simulator on it is running. Shut it down to remove it.")));
    EXPECT_FALSE(deleted(QStringLiteral("runtime delete ") + runtimeWithBootedDevice));

    xcrun.answer({QStringLiteral("simctl"), QStringLiteral("runtime"), QStringLiteral("delete"), idleRuntime}, {});
    EXPECT_EQ(removeRuntime(idleRuntime), RemovalOutcome::removedByTool());
    EXPECT_TRUE(deleted(QStringLiteral("runtime delete ") + idleRuntime));
}

TEST_F(SimulatorRemovalTest, BrokenOutputAndToolErrorsRefuseWithAReason)
{
    xcrun.answer(listDevices, QStringLiteral("{\"devices\": [truncated"));
    EXPECT_EQ(removeDevice(idleDevice, QStringLiteral("2024-06-01T09:12:44Z")),
              RemovalOutcome::failed(QStringLiteral("Xcode's simulator tool gave an answer Dustlark can't read.")));

    xcrun.answerWithFixture(listDevices, QStringLiteral("simctl/devices.json"));
    xcrun.answer({QStringLiteral("simctl"), QStringLiteral("delete"), idleDevice}, {}, 1,
                 QStringLiteral("An error was encountered processing the command (domain=com.apple.CoreSimulator.SimError, code=405):\n"
                                "Unable to delete an unavailable device.\n"));
    EXPECT_EQ(removeDevice(idleDevice, QStringLiteral("2024-06-01T09:12:44Z")).reason,
              QStringLiteral("An error was encountered processing the command (domain=com.apple.CoreSimulator.SimError, code=405):\n"
                             "Unable to delete an unavailable device."));

    environment.tools.xcrun = QStringLiteral("/nonexistent/xcrun");
    const RemovalOutcome missing = removeRuntime(idleRuntime);
    EXPECT_EQ(missing.kind, RemovalOutcome::Kind::failed);
    EXPECT_TRUE(missing.reason.startsWith(QStringLiteral("The tool couldn't be started: "))) << qPrintable(missing.reason);
}

}  // namespace
