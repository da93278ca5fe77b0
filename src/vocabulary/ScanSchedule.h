#pragma once

#include <QString>

#include <array>

// How often a scan runs in the background on its own ("Scan for me"). Stored under
// "scheduledScan" as its raw value ("never", "weekly", "monthly").
enum class ScanSchedule { never, weekly, monthly };

namespace ScanSchedules {

const std::array<ScanSchedule, 3>& allCases();

QString rawValue(ScanSchedule schedule);
// Anything else reads as `never`, so a stray preference never starts a timer.
ScanSchedule fromRawValue(const QString& raw);

// The settings menu's title ("Never", "Every week", "Every month").
QString title(ScanSchedule schedule);

}  // namespace ScanSchedules
