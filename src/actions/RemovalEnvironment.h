#pragma once

#include "actions/MovedTargets.h"
#include "actions/TrashOperation.h"
#include "machinery/CancellationToken.h"
#include "machinery/ToolLocations.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

// Everything outside the process that a removal consults or changes, gathered so tests can
// replace each piece. system() is the real system; a default-constructed one has the real
// clock, process list and Trash but no home folder, so it allows nothing. A plain value: a
// cleanup or a move takes it when prepared, so what it allows is what the person's settings
// said then, whichever thread removes.
struct RemovalEnvironment {
    QString home;                    // no trailing "/"
    QStringList otherVolumeFolders;  // scan folders on another disk than the home, decided when prepared
    std::function<QDateTime()> now = &systemNow;
    std::function<QStringList()> runningExecutables = &systemRunningExecutables;
    TrashOperation trash = &systemTrash;
    ToolLocations tools;
    std::optional<QString> dockerHostVariable;  // DOCKER_HOST, when set and not empty
    const CancellationToken* cancellation = nullptr;  // may be null; stops long walks and tools
    // What this cleanup or move has sent to the Trash so far; copies of the environment share it.
    std::shared_ptr<MovedTargets> movedTargets = std::make_shared<MovedTargets>();

    // The real system for `home`: of `scanFolders` those on another disk than the home, the
    // system clock, the running programs, the system Trash and the tools in their standard places.
    [[nodiscard]] static RemovalEnvironment system(const QString& home, const QStringList& scanFolders);

    static QDateTime systemNow();
    static QStringList systemRunningExecutables();
    static TrashResult systemTrash(const TrashRequest& request);
};
