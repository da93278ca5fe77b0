#pragma once

#include <QDir>
#include <QString>

#include <optional>

// The size and free space of the volume holding the home folder. Plain value, compared so the
// screens update only when it changes.
struct DiskSpace {
    qint64 total = 0;
    qint64 available = 0;  // counts space the system would purge for the person as free

    bool operator==(const DiskSpace&) const = default;

    // Reads the volume holding `home`; absent when either figure can't be read. Thread-safe.
    [[nodiscard]] static std::optional<DiskSpace> current(const QString& home = QDir::homePath());
};
