#include "actions/SimulatorRemoval.h"

#include "actions/ToolAnswer.h"
#include "vocabulary/RemovalReasons.h"
#include "vocabulary/SimulatorLastUse.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace SimulatorRemoval {

namespace {

using std::chrono::seconds;

constexpr seconds listTimeLimit{60};
constexpr seconds deleteTimeLimit{600};

QString unreadableAnswer()
{
    //: Cleanup failure reason when Xcode's simulator tool (xcrun simctl) printed something unreadable
    return QCoreApplication::translate("Remover", "Xcode's simulator tool gave an answer Dustlark can't read.");
}

// The decoded JSON of a simctl listing, or the sentence why it couldn't be had.
struct Listing {
    QJsonObject json;
    std::optional<QString> failure;
};

Listing list(const RemovalEnvironment& environment, const QStringList& arguments)
{
    const ToolAnswer answer = ToolAnswer::ask(environment.tools.xcrun, QStringList{QStringLiteral("simctl")} + arguments,
                                              listTimeLimit, environment.cancellation);
    if (!answer.succeeded)
        return {{}, answer.failure};
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(answer.output.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return {{}, unreadableAnswer()};  // can't tell what runs: refuse
    return {document.object(), std::nullopt};
}

Listing listDevices(const RemovalEnvironment& environment)
{
    return list(environment, {QStringLiteral("list"), QStringLiteral("devices"), QStringLiteral("--json")});
}

bool isRunning(const QJsonObject& device)
{
    return device.value(QLatin1String("state")).toString() != QLatin1String("Shutdown");
}

std::optional<QJsonObject> findDevice(const QJsonObject& listing, const QString& udid)
{
    const QJsonObject runtimes = listing.value(QLatin1String("devices")).toObject();
    for (auto runtime = runtimes.begin(); runtime != runtimes.end(); ++runtime) {
        for (const QJsonValue& device : runtime.value().toArray()) {
            if (device.toObject().value(QLatin1String("udid")).toString() == udid)
                return device.toObject();
        }
    }
    return std::nullopt;
}

std::optional<QDateTime> lastUsed(const QJsonObject& device)
{
    const QString text = SimulatorLastUse::ofDevice(device).value_or(QString());
    const QDateTime date = QDateTime::fromString(text, Qt::ISODateWithMs);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

// Compared as instants: the scan and now may read the same text into different time zones.
bool sameInstant(const std::optional<QDateTime>& a, const std::optional<QDateTime>& b)
{
    if (!a || !b)
        return a.has_value() == b.has_value();
    return a->toMSecsSinceEpoch() == b->toMSecsSinceEpoch();
}

std::optional<QString> deviceProblem(const Removal::SimulatorDevice& wanted, const RemovalEnvironment& environment)
{
    const Listing listing = listDevices(environment);
    if (listing.failure)
        return listing.failure;
    const std::optional<QJsonObject> device = findDevice(listing.json, wanted.udid);
    if (!device)
        return RemovalReasons::noLongerExists();
    if (isRunning(*device)) {
        //: Why a simulator device can't be removed
        return QCoreApplication::translate("Remover", "Running. Shut it down to remove it.");
    }
    if (!sameInstant(lastUsed(*device), wanted.lastUsed))
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

// The platform key ("com.apple.CoreSimulator.SimRuntime.iOS-17-5") under which the device
// list files the devices of the runtime with this identifier.
std::optional<QString> runtimeKey(const QJsonObject& runtimes, const QString& identifier)
{
    for (auto runtime = runtimes.begin(); runtime != runtimes.end(); ++runtime) {
        const QJsonObject fields = runtime.value().toObject();
        if (runtime.key() == identifier || fields.value(QLatin1String("identifier")).toString() == identifier)
            return fields.value(QLatin1String("runtimeIdentifier")).toString();
    }
    return std::nullopt;
}

bool anyRunning(const QJsonObject& deviceListing, const QString& key)
{
    const QJsonArray devices = deviceListing.value(QLatin1String("devices")).toObject().value(key).toArray();
    return std::any_of(devices.begin(), devices.end(), [](const QJsonValue& device) { return isRunning(device.toObject()); });
}

std::optional<QString> runtimeProblem(const Removal::SimulatorRuntime& wanted, const RemovalEnvironment& environment)
{
    const Listing runtimes = list(environment, {QStringLiteral("runtime"), QStringLiteral("list"), QStringLiteral("--json")});
    if (runtimes.failure)
        return runtimes.failure;
    const std::optional<QString> key = runtimeKey(runtimes.json, wanted.id);
    if (!key)
        return RemovalReasons::noLongerExists();
    const Listing devices = listDevices(environment);
    if (devices.failure)
        return devices.failure;
    if (anyRunning(devices.json, *key)) {
        //: Why a simulator runtime can't be removed
        return QCoreApplication::translate("Remover", "A simulator on it is running. Shut it down to remove it.");
    }
    return std::nullopt;
}

RemovalOutcome runDelete(const RemovalEnvironment& environment, const QStringList& arguments)
{
    const ToolAnswer answer = ToolAnswer::ask(environment.tools.xcrun, QStringList{QStringLiteral("simctl")} + arguments,
                                              deleteTimeLimit, environment.cancellation);
    return answer.succeeded ? RemovalOutcome::removedByTool() : RemovalOutcome::failed(answer.failure);
}

}  // namespace

RemovalOutcome removeDevice(const Removal::SimulatorDevice& device, const RemovalEnvironment& environment)
{
    if (auto problem = deviceProblem(device, environment))
        return RemovalOutcome::failed(*problem);
    return runDelete(environment, {QStringLiteral("delete"), device.udid});
}

RemovalOutcome removeRuntime(const Removal::SimulatorRuntime& runtime, const RemovalEnvironment& environment)
{
    if (auto problem = runtimeProblem(runtime, environment))
        return RemovalOutcome::failed(*problem);
    return runDelete(environment, {QStringLiteral("runtime"), QStringLiteral("delete"), runtime.id});
}

}  // namespace SimulatorRemoval
