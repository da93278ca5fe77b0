#include "support/RealMover.h"

#include "actions/Mover.h"

void useCopyTool(AppModel::Services& services, const Mover::CopyTool& copyTool)
{
    services.moveItem = [copyTool](const CleanupItem& item, const QString& destination, const Mover::Progress& progress,
                                   const Mover::Environment& prepared) {
        Mover::Environment environment = prepared;
        environment.copyTool = copyTool;
        return Mover::move(item, destination, progress, environment);
    };
}

Mover::CopyTool stallingCopyTool()
{
    return {QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("cp -a -T -- \"$1\" \"$2\"; sleep 60"), QStringLiteral("copy")},
            std::chrono::minutes(2), {}};
}
