// `simctl list devices --json` and `simctl runtime list --json`, through to the rows they become.
#include "FuzzInput.h"

#include "scan/SimulatorScanner.h"

#include <algorithm>

namespace {

using Device = SimulatorScanner::Device;
using Runtime = SimulatorScanner::Runtime;

void runtimeRows(const QList<Runtime>& runtimes, const SimulatorScanner::DeviceList& list)
{
    for (const Runtime& runtime : runtimes) {
        const QList<Device> devices = list.devices.value(runtime.runtimeIdentifier.value_or(QString()));
        const bool running = std::any_of(devices.begin(), devices.end(), [](const Device& d) { return d.isRunning(); });
        (void)SimulatorScanner::item(runtime, static_cast<int>(devices.size()), running);
    }
}

void deviceRows(const SimulatorScanner::DeviceList& list)
{
    for (auto runtime = list.devices.begin(); runtime != list.devices.end(); ++runtime) {
        const QString runtimeTitle = SimulatorScanner::runtimeName(runtime.key()).value_or(runtime.key());
        for (const Device& device : runtime.value())
            (void)SimulatorScanner::item(device, runtimeTitle, device.dataPathSize.value_or(0));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray json = fuzzBytes(data, size);
    const auto list = SimulatorScanner::DeviceList::decode(json).value_or(SimulatorScanner::DeviceList{});
    runtimeRows(SimulatorScanner::decodeRuntimes(json).value_or(QList<Runtime>()), list);
    deviceRows(list);
    return 0;
}
