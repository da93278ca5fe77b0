#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

// When a simulator device was last used, as the simulator tool's device list prints it. The
// scanner dates its rows by it and the remover compares it again, so both read it here.
namespace SimulatorLastUse {

// The device's last use as the tool wrote it (ISO 8601); absent when the device never booted.
[[nodiscard]] std::optional<QString> ofDevice(const QJsonObject& device);

}  // namespace SimulatorLastUse
