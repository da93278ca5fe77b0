#pragma once

#include <QtGlobal>

#include <functional>

namespace Mover {

// Bytes copied so far and the total; called from a measuring thread a few times a second.
using Progress = std::function<void(qint64 copied, qint64 total)>;

}  // namespace Mover
