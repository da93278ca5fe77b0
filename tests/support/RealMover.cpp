#include "support/RealMover.h"

#include "actions/Mover.h"

void useRealMover(AppModel::Services& services, const QString& home, std::optional<Mover::CopyTool> copyTool)
{
    services.moveItem = [home, copyTool](const CleanupItem& item, const QString& destination,
                                         const Mover::Progress& progress, const CancellationToken& stop) {
        Mover::Environment environment = Mover::Environment::current();
        environment.removal.home = home;
        environment.removal.otherVolumeFolders.clear();
        environment.removal.cancellation = &stop;
        if (copyTool)
            environment.copyTool = *copyTool;
        return Mover::move(item, destination, progress, environment);
    };
}

Mover::CopyTool stallingCopyTool()
{
    return {QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("cp -a -T -- \"$1\" \"$2\"; sleep 60"), QStringLiteral("copy")},
            std::chrono::minutes(2), {}};
}
