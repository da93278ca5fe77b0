#pragma once

#include <QDateTime>
#include <QJsonValue>

#include <optional>

// Dates in the stored JSON ("safeItemInfo", "usageStats") are written the way the macOS JSON
// coder writes them by default: seconds since 2001-01-01 00:00:00 UTC as a number, so values
// stay readable by every Mac build. Millisecond precision survives a round trip.
namespace JsonDate {

QDateTime referenceDate();

[[nodiscard]] QJsonValue encode(const QDateTime& date);
// Absent when the value is not a finite number.
[[nodiscard]] std::optional<QDateTime> decode(const QJsonValue& value);

}  // namespace JsonDate
