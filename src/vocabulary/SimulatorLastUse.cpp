#include "vocabulary/SimulatorLastUse.h"

#include <QDateTime>

namespace SimulatorLastUse {

namespace {

std::optional<QDateTime> dateOf(const QJsonObject& device, const char* key)
{
    const QDateTime date = QDateTime::fromString(device.value(QLatin1String(key)).toString(), Qt::ISODateWithMs);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

}  // namespace

// The field is documented as "lastUsedAt", but `simctl list devices --json` of Xcode 15 and 16
// prints a device's last use as "lastBootedAt" ("lastUsedAt" appears on runtimes). Both are
// read; where both are present the later one counts.
std::optional<QString> ofDevice(const QJsonObject& device)
{
    const std::optional<QDateTime> booted = dateOf(device, "lastBootedAt");
    const std::optional<QDateTime> used = dateOf(device, "lastUsedAt");
    if (!booted && !used)
        return std::nullopt;
    const char* key = (booted && (!used || *booted >= *used)) ? "lastBootedAt" : "lastUsedAt";
    return device.value(QLatin1String(key)).toString();
}

}  // namespace SimulatorLastUse
