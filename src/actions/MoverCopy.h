#pragma once

#include "actions/MoverEnvironment.h"
#include "actions/MoverProgress.h"

#include <QString>

#include <optional>

// One run of the copy tool inside a move, with the bytes that have arrived measured a few times
// a second on a thread of its own. Internal to the mover; blocks its worker thread.
namespace Mover::Copy {

// Copies `source` to `target` (which must not exist) with the environment's copy tool; while it
// runs, `progress` gets the bytes below `measured` against `total`. Nothing on success,
// otherwise the tool's message. A stop ends the tool and its children.
[[nodiscard]] std::optional<QString> run(const QString& source, const QString& target, const QString& measured,
                                         qint64 total, const Progress& progress, const Environment& environment);

}  // namespace Mover::Copy
