#pragma once

#include "actions/MoverCopyTool.h"
#include "model/AppModel.h"

// Makes the model move through the real mover and the real Trash, in the environment the model
// prepared, with `copyTool` in place of the system's copy tool (a stalling or failing stand-in).
void useCopyTool(AppModel::Services& services, const Mover::CopyTool& copyTool);

// A copy tool that copies with the system's tool and then stalls like a slow disk until stopped.
Mover::CopyTool stallingCopyTool();
