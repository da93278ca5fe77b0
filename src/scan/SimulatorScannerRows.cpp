// The records the simulator tool prints and the rows made of them.
#include "scan/SimulatorScanner.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "vocabulary/SimulatorLastUse.h"

#include <QCoreApplication>

namespace {

const QString separator = QStringLiteral(" · ");

std::optional<QString> text(const QJsonObject& json, const char* key)
{
    const QJsonValue value = json.value(QLatin1String(key));
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<bool> flag(const QJsonObject& json, const char* key)
{
    const QJsonValue value = json.value(QLatin1String(key));
    return value.isBool() ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<qint64> bytes(const QJsonObject& json, const char* key)
{
    const QJsonValue value = json.value(QLatin1String(key));
    return value.isDouble() ? std::optional(value.toInteger()) : std::nullopt;
}

QString usedFact(const std::optional<QDateTime>& lastUsed)
{
    if (!lastUsed)
        //: Fact in a simulator device's detail line
        return QCoreApplication::translate("SimulatorScanner", "never used");
    //: Fact in a simulator's detail line; %1 is a relative date like '3 months ago'
    return QCoreApplication::translate("SimulatorScanner", "used %1").arg(RelativeDate::marker(*lastUsed));
}

QString deviceDetail(const SimulatorScanner::Device& device, const QString& runtime)
{
    //: Fact in a simulator device's detail line; %1 is the runtime's name like 'iOS 17.5'
    QStringList facts = {QCoreApplication::translate("SimulatorScanner", "removing it keeps %1").arg(runtime),
                         usedFact(SimulatorScanner::date(device.lastUsedAt))};
    if (!device.canRun()) {
        //: Why a simulator device can't run, in parentheses of "can't run: its iOS is gone (%1)"
        const QString missing = QCoreApplication::translate("SimulatorScanner", "runtime is missing");
        const QString reason = device.availabilityError.value_or(QString()).isEmpty() ? missing : *device.availabilityError;
        //: Fact in a simulator device's detail line; %1 is Xcode's reason
        facts << QCoreApplication::translate("SimulatorScanner", "can't run: its iOS is gone (%1)").arg(reason);
    }
    return facts.join(separator);
}

QString runtimeTitle(const SimulatorScanner::Runtime& runtime)
{
    //: Title of a simulator runtime row; %1 is its name like 'iOS 17.5'
    return QCoreApplication::translate("SimulatorScanner", "%1 runtime").arg(SimulatorScanner::displayName(runtime));
}

QString runtimeDetail(const SimulatorScanner::Runtime& runtime, int deviceCount)
{
    QStringList facts;
    if (runtime.build)
        //: Fact in a simulator runtime's detail line; %1 is a build like '21F79'
        facts << QCoreApplication::translate("SimulatorScanner", "Build %1").arg(*runtime.build);
    if (const auto lastUsed = SimulatorScanner::date(runtime.lastUsedAt))
        facts << usedFact(lastUsed);
    if (deviceCount > 0) {
        const QString size = ByteCount::format(runtime.sizeBytes.value_or(0));
        //: Fact in a simulator runtime's detail line; %1 is a number of devices, %2 a size like '7.4 GB'
        facts << QCoreApplication::translate("SimulatorScanner", "%1 devices stop working without it; getting it back is a %2 download")
                     .arg(deviceCount).arg(size);
    } else {
        //: Fact in a simulator runtime's detail line
        facts << QCoreApplication::translate("SimulatorScanner", "no devices use it");
    }
    return facts.join(separator);
}

std::optional<QString> runtimeLock(const SimulatorScanner::Runtime& runtime, bool running)
{
    if (running)
        //: Why a simulator runtime can't be selected
        return QCoreApplication::translate("SimulatorScanner", "A simulator on it is running. Shut it down to remove it.");
    if (runtime.deletable == false)
        //: Why a simulator runtime can't be selected
        return QCoreApplication::translate("SimulatorScanner", "Installed with Xcode; remove it in Xcode Settings › Components.");
    return std::nullopt;
}

}  // namespace

std::optional<SimulatorScanner::Runtime> SimulatorScanner::Runtime::decode(const QJsonObject& json)
{
    const auto identifier = text(json, "identifier");
    if (!identifier)
        return std::nullopt;
    return Runtime{*identifier, text(json, "version"), text(json, "build"), text(json, "runtimeIdentifier"),
                   bytes(json, "sizeBytes"), flag(json, "deletable"), text(json, "lastUsedAt")};
}

std::optional<SimulatorScanner::Device> SimulatorScanner::Device::decode(const QJsonObject& json)
{
    const auto udid = text(json, "udid");
    if (!udid)
        return std::nullopt;
    return Device{*udid, text(json, "name"), text(json, "state"), flag(json, "isAvailable"), text(json, "availabilityError"),
                  text(json, "dataPath"), bytes(json, "dataPathSize"), SimulatorLastUse::ofDevice(json)};
}

QString SimulatorScanner::displayName(const Runtime& runtime)
{
    if (auto name = runtimeName(runtime.runtimeIdentifier.value_or(QString())))
        return *name;
    if (runtime.version)
        //: A simulator runtime whose platform can't be told; %1 is its version like '17.5'
        return QCoreApplication::translate("SimulatorScanner", "Simulator %1").arg(*runtime.version);
    return runtime.identifier;
}

std::optional<QDateTime> SimulatorScanner::date(const std::optional<QString>& text)
{
    const QDateTime date = QDateTime::fromString(text.value_or(QString()), Qt::ISODateWithMs);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

CleanupItem SimulatorScanner::item(const Device& device, const QString& runtime, qint64 size)
{
    CleanupItem row;
    row.id = QStringLiteral("sim:device:") + device.udid;
    row.category = CategoryID::simulators;
    row.title = device.name.value_or(device.udid);
    //: Badge of a simulator device
    const QString usable = QCoreApplication::translate("SimulatorScanner", "Device");
    //: Badge of a simulator device that can't run, because its runtime is gone
    row.badge = device.canRun() ? usable : QCoreApplication::translate("SimulatorScanner", "Unavailable");
    row.detail = deviceDetail(device, runtime);
    row.size = size;
    row.date = date(device.lastUsedAt);
    if (device.isRunning())
        //: Why a simulator device can't be selected
        row.lockedReason = QCoreApplication::translate("SimulatorScanner", "Running. Shut it down to remove it.");
    row.removal = {Removal::SimulatorDevice{device.udid, date(device.lastUsedAt)}};
    return row;
}

CleanupItem SimulatorScanner::item(const Runtime& runtime, int deviceCount, bool running)
{
    CleanupItem row;
    row.id = QStringLiteral("sim:runtime:") + runtime.identifier;
    row.category = CategoryID::simulators;
    row.title = runtimeTitle(runtime);
    //: Badge of a simulator runtime
    row.badge = QCoreApplication::translate("SimulatorScanner", "Runtime");
    row.detail = runtimeDetail(runtime, deviceCount);
    row.size = runtime.sizeBytes.value_or(0);
    row.date = date(runtime.lastUsedAt);
    row.lockedReason = runtimeLock(runtime, running);
    row.removal = {Removal::SimulatorRuntime{runtime.identifier}};
    return row;
}
