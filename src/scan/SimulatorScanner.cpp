#include "scan/SimulatorScanner.h"

#include "machinery/Concurrency.h"
#include "machinery/FileSizer.h"
#include "machinery/ProcessRunner.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

constexpr int measuringLimit = 4;

// A listing of the simulator tool: its standard output, or the sentence why there is none.
struct Listing {
    QByteArray json;
    std::optional<QString> failure;
};

Listing list(const SimulatorScanner::Environment& environment, const QStringList& arguments, const ScanContext& context)
{
    const ProcessRunner::Result result = ProcessRunner::run(environment.xcrun, QStringList{QStringLiteral("simctl")} + arguments,
                                                            environment.listTimeLimit, {}, &context.cancellation);
    if (!result.launched())
        return {{}, RemovalReasons::toolDidNotStart(result.launchError)};
    if (result.output->status != 0 || result.output->timedOut)
        return {{}, result.output->errorMessage()};
    return {result.output->standardOutput.toUtf8(), std::nullopt};
}

QString unreadableAnswer()
{
    //: Why the simulator tool's listing couldn't be used: it printed something that isn't valid JSON
    return QCoreApplication::translate("SimulatorScanner", "The tool's answer isn't valid JSON.");
}

// A device with the runtime it belongs to.
struct PlacedDevice {
    SimulatorScanner::Device device;
    QString runtimeKey;
};

// The name of the runtime the device list files under `key`, for the device's detail.
QString runtimeTitle(const QString& key, const QList<SimulatorScanner::Runtime>& runtimes)
{
    for (const SimulatorScanner::Runtime& runtime : runtimes) {
        if (runtime.runtimeIdentifier == key)
            return SimulatorScanner::displayName(runtime);
    }
    return SimulatorScanner::runtimeName(key).value_or(key);  // a runtime that is gone
}

QList<CleanupItem> deviceRows(const SimulatorScanner::DeviceList& list, const QList<SimulatorScanner::Runtime>& runtimes,
                              const ScanContext& context)
{
    std::vector<PlacedDevice> devices;
    for (auto runtime = list.devices.begin(); runtime != list.devices.end(); ++runtime) {
        for (const SimulatorScanner::Device& device : runtime.value())
            devices.push_back({device, runtime.key()});
    }
    const auto rows = Concurrency::map(devices, measuringLimit, context.cancellation, [&](const PlacedDevice& placed) {
        const qint64 size = placed.device.dataPath
            ? FileSizer::measure(*placed.device.dataPath, context.progress.get(), &context.cancellation).bytes
            : placed.device.dataPathSize.value_or(0);
        return SimulatorScanner::item(placed.device, runtimeTitle(placed.runtimeKey, runtimes), size);
    });
    return QList<CleanupItem>(rows.begin(), rows.end());
}

QList<CleanupItem> runtimeRows(const QList<SimulatorScanner::Runtime>& runtimes, const SimulatorScanner::DeviceList& list)
{
    QList<CleanupItem> rows;
    for (const SimulatorScanner::Runtime& runtime : runtimes) {
        const QList<SimulatorScanner::Device> devices = list.devices.value(runtime.runtimeIdentifier.value_or(QString()));
        const bool running = std::any_of(devices.begin(), devices.end(), [](const auto& device) { return device.isRunning(); });
        rows.append(SimulatorScanner::item(runtime, static_cast<int>(devices.size()), running));
    }
    return rows;
}

}  // namespace

ScanOutputs SimulatorScanner::scan(const ScanContext& context) const
{
    return {{CategoryID::simulators, scanSimulators(context)}};
}

ScanOutput SimulatorScanner::scanSimulators(const ScanContext& context) const
{
    if (!hasXcode(&context.cancellation))
        return {{}, {noXcodeNote()}, {}};
    const Listing devices = list(m_environment, {QStringLiteral("list"), QStringLiteral("devices"), QStringLiteral("--json")}, context);
    const std::optional<DeviceList> deviceList = devices.failure ? std::nullopt : DeviceList::decode(devices.json);
    if (!deviceList) {
        const QString reason = devices.failure.value_or(unreadableAnswer());
        //: Note in the Simulators category; %1 is the tool's error sentence
        const QString note = QCoreApplication::translate("SimulatorScanner", "Couldn't list simulator devices: %1").arg(reason);
        return {{}, {note}, {}};
    }
    ScanOutput output;
    const Listing runtimeListing = list(m_environment, {QStringLiteral("runtime"), QStringLiteral("list"), QStringLiteral("--json")}, context);
    const auto runtimes = runtimeListing.failure ? std::nullopt : decodeRuntimes(runtimeListing.json);
    if (!runtimes) {
        const QString reason = runtimeListing.failure.value_or(unreadableAnswer());
        //: Note in the Simulators category; %1 is the tool's error sentence. The devices are still listed.
        output.notes << QCoreApplication::translate("SimulatorScanner", "Couldn't list simulator runtimes: %1").arg(reason);
    }
    output.items = deviceRows(*deviceList, runtimes.value_or(QList<Runtime>()), context);
    output.items += runtimeRows(runtimes.value_or(QList<Runtime>()), *deviceList);
    return output;
}

bool SimulatorScanner::hasXcode(const CancellationToken* cancellation) const
{
    const ProcessRunner::Result result = ProcessRunner::run(m_environment.xcodeSelect, {QStringLiteral("-p")},
                                                            m_environment.selectTimeLimit, {}, cancellation);
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return false;
    // The command line tools alone ("/Library/Developer/CommandLineTools") have no simulators.
    return result.output->standardOutput.contains(QLatin1String(".app/Contents/Developer"));
}

std::optional<QString> SimulatorScanner::runtimeName(const QString& runtimeIdentifier)
{
    const QString last = runtimeIdentifier.section(QLatin1Char('.'), -1);
    const QStringList parts = last.split(QLatin1Char('-'));
    if (parts.size() < 2 || parts[0].isEmpty())
        return std::nullopt;
    for (qsizetype i = 1; i < parts.size(); ++i) {
        bool number = false;
        parts[i].toInt(&number);
        if (!number)
            return std::nullopt;
    }
    return parts[0] + QLatin1Char(' ') + parts.mid(1).join(QLatin1Char('.'));
}

std::optional<QList<SimulatorScanner::Runtime>> SimulatorScanner::decodeRuntimes(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    QList<Runtime> runtimes;
    const QJsonObject entries = document.object();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (auto runtime = Runtime::decode(entry.value().toObject()))
            runtimes.append(*runtime);
    }
    return runtimes;
}

std::optional<SimulatorScanner::DeviceList> SimulatorScanner::DeviceList::decode(const QByteArray& json)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    const QJsonValue devices = document.object().value(QLatin1String("devices"));
    if (error.error != QJsonParseError::NoError || !devices.isObject())
        return std::nullopt;
    DeviceList list;
    const QJsonObject runtimes = devices.toObject();
    for (auto runtime = runtimes.begin(); runtime != runtimes.end(); ++runtime) {
        QList<Device>& listed = list.devices[runtime.key()];
        for (const QJsonValue& value : runtime.value().toArray()) {
            if (auto device = Device::decode(value.toObject()))
                listed.append(*device);
        }
    }
    return list;
}

QString SimulatorScanner::noXcodeNote()
{
    //: Note in the Simulators category
    return QCoreApplication::translate("SimulatorScanner", "Xcode isn't installed, so there are no simulators to manage.");
}
