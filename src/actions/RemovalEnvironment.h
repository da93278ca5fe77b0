#pragma once

#include "machinery/DockerScanRecord.h"
#include "actions/TrashOperation.h"
#include "machinery/CancellationToken.h"
#include "machinery/ToolLocations.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// Everything outside the process that a removal consults or changes, gathered so tests can
// replace each piece. current() is the real system; a default-constructed one has the real
// clock, process list and Trash but no home folder, so it allows nothing. A plain value.
struct RemovalEnvironment {
    QString home;                    // no trailing "/"
    QStringList otherVolumeFolders;  // scan folders on another disk than the home, decided when prepared
    std::function<QDateTime()> now = &systemNow;
    std::function<QStringList()> runningExecutables = &systemRunningExecutables;
    TrashOperation trash = &systemTrash;
    ToolLocations tools;
    std::optional<DockerScanRecord> dockerScan;
    std::optional<QString> dockerHostVariable;  // DOCKER_HOST, when set and not empty
    const CancellationToken* cancellation = nullptr;  // may be null; stops long walks and tools

    // The person's home folder, the published scan folders, the system clock, the running
    // programs, the system Trash and the tools in their standard places.
    [[nodiscard]] static RemovalEnvironment current();

    static QDateTime systemNow();
    static QStringList systemRunningExecutables();
    static TrashResult systemTrash(const TrashRequest& request);
};
