#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// The Docker endpoint the last Docker scan talked to, and when it ran. The scanner remembers
// it; removal compares the endpoint in use then with it, and a container's stop time with the
// scan's time. Thread-safe: the process-wide record is guarded by a mutex.
struct DockerScanRecord {
    QString host;  // a "unix://" address
    QDateTime scannedAt;

    bool operator==(const DockerScanRecord&) const = default;

    static void remember(const DockerScanRecord& record);
    // The latest remembered record; absent before the first Docker scan.
    [[nodiscard]] static std::optional<DockerScanRecord> last();
};
