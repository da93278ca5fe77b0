#include "actions/Remover.h"

#include "actions/DockerRemoval.h"
#include "actions/SimulatorRemoval.h"
#include "actions/TrashMove.h"
#include "vocabulary/RemovalReasons.h"

namespace Remover {

Outcome remove(const CleanupItem& item, const RemovalEnvironment& environment)
{
    if (item.lockedReason)
        return Outcome::failed(*item.lockedReason);
    const Removal& removal = item.removal;
    if (const auto* trash = removal.as<Removal::Trash>())
        return TrashMove::moveAll(trash->targets, environment, item.projectPath);
    if (const auto* docker = removal.as<Removal::Docker>())
        return DockerRemoval::remove(docker->operation, environment);
    if (const auto* device = removal.as<Removal::SimulatorDevice>())
        return SimulatorRemoval::removeDevice(*device, environment);
    if (const auto* runtime = removal.as<Removal::SimulatorRuntime>())
        return SimulatorRemoval::removeRuntime(*runtime, environment);
    return Outcome::failed(RemovalReasons::emptyTrashInstead());
}

}  // namespace Remover
