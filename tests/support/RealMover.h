#pragma once

#include "actions/MoverCopyTool.h"
#include "model/AppModel.h"

#include <optional>

// Makes the model move through the real mover, with the real Trash, scoped to the test's home
// folder; `copyTool` replaces the system's copy tool when given (a stalling or failing stand-in).
void useRealMover(AppModel::Services& services, const QString& home, std::optional<Mover::CopyTool> copyTool = {});

// A copy tool that copies with the system's tool and then stalls like a slow disk until stopped.
Mover::CopyTool stallingCopyTool();
