#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// When a file was last opened, where the system keeps that. Thread-safe.
namespace LastOpened {

// Spotlight's last-used date on macOS (it asks mdls, so call it on a worker thread); elsewhere
// the access time, but only when it is newer than the modification time (otherwise it may only
// say the file was written). Absent when unknown.
[[nodiscard]] std::optional<QDateTime> of(const QString& path);

// mdls's date form, "2024-05-01 09:30:12 +0000"; absent for "(null)" or anything else.
[[nodiscard]] std::optional<QDateTime> parseSpotlightDate(const QString& text);

}  // namespace LastOpened
