#pragma once

#include "actions/MoverCopyTool.h"
#include "actions/RemovalEnvironment.h"

namespace Mover {

// What a move reaches outside the process through: the removal environment that sends the
// originals to the Trash (its `cancellation` is the Stop button) and the copy tool. Plain value.
struct Environment {
    RemovalEnvironment removal;
    CopyTool copyTool;

    // The real system for `home` and its `scanFolders` (RemovalEnvironment::system) and the
    // system's copy tool.
    [[nodiscard]] static Environment system(const QString& home, const QStringList& scanFolders);
};

}  // namespace Mover
