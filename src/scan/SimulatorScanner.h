#pragma once

#include "machinery/ToolLocations.h"
#include "scan/Scanner.h"
#include "vocabulary/CleanupItem.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>

#include <chrono>
#include <optional>

// Fills the Simulators category with the devices and runtimes that Xcode's simulator tool
// lists; both are removed by that tool, never through the Trash. A value type; scan() runs the
// tool on the calling worker thread and measures the devices' data folders in parallel.
class SimulatorScanner : public Scanner {
public:
    // The tools and their time limits; the defaults are the real ones.
    struct Environment {
        QString xcrun = ToolLocations::standard({}).xcrun;
        QString xcodeSelect = ToolLocations::standard({}).xcodeSelect;
        std::chrono::milliseconds listTimeLimit{60'000};
        std::chrono::milliseconds selectTimeLimit{10'000};
    };

    // One entry of `simctl runtime list --json`; only the identifier is required.
    struct Runtime {
        QString identifier;
        std::optional<QString> version, build, runtimeIdentifier;
        std::optional<qint64> sizeBytes;
        std::optional<bool> deletable;
        std::optional<QString> lastUsedAt;
        static std::optional<Runtime> decode(const QJsonObject& json);
    };
    // One device of `simctl list devices --json`; only the udid is required.
    struct Device {
        QString udid;
        std::optional<QString> name, state;
        std::optional<bool> isAvailable;
        std::optional<QString> availabilityError, dataPath;
        std::optional<qint64> dataPathSize;
        std::optional<QString> lastUsedAt;
        static std::optional<Device> decode(const QJsonObject& json);
        [[nodiscard]] bool isRunning() const { return state != QLatin1String("Shutdown"); }
        [[nodiscard]] bool canRun() const { return isAvailable.value_or(true); }
    };
    // The device list: runtime identifier to its devices.
    struct DeviceList {
        QMap<QString, QList<Device>> devices;
        // Absent when `json` is not a JSON object holding "devices".
        static std::optional<DeviceList> decode(const QByteArray& json);
    };

    SimulatorScanner() = default;
    explicit SimulatorScanner(Environment environment) : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::simulators}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The whole category; a note instead of rows without Xcode or a readable device list.
    [[nodiscard]] ScanOutput scanSimulators(const ScanContext& context) const;

    // Whether a full Xcode (not only the command line tools) is selected for builds.
    [[nodiscard]] bool hasXcode(const CancellationToken* cancellation = nullptr) const;

    // "iOS 17.5" from "com.apple.CoreSimulator.SimRuntime.iOS-17-5"; absent when the
    // identifier doesn't end in a platform and a version.
    [[nodiscard]] static std::optional<QString> runtimeName(const QString& runtimeIdentifier);
    // The runtime's readable name: "iOS 17.5", else "Simulator 17.5", else its identifier.
    [[nodiscard]] static QString displayName(const Runtime& runtime);
    // The runtime list's entries, keyed as the tool prints them; absent when not JSON.
    [[nodiscard]] static std::optional<QList<Runtime>> decodeRuntimes(const QByteArray& json);

    // The device's row. `runtime` names the runtime the device needs; `size` is its data's.
    [[nodiscard]] static CleanupItem item(const Device& device, const QString& runtime, qint64 size);
    // The runtime's row, given how many devices use it and whether one of them runs.
    [[nodiscard]] static CleanupItem item(const Runtime& runtime, int deviceCount, bool running);

    // The lastUsedAt text as a date; the remover reads it the same way.
    [[nodiscard]] static std::optional<QDateTime> date(const std::optional<QString>& text);

    [[nodiscard]] static QString noXcodeNote();

private:
    Environment m_environment;
};
