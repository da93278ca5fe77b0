#pragma once

#include "scan/AppOwner.h"

#include <QList>

// The apps whose caches the cache and agent scanners lock while they run: browsers, editors
// (JetBrains Toolbox as the owner of every JetBrains cache) and the agents' desktop apps. The
// macOS places come first; Linux rows add the same app's places there. Thread-safe.
namespace AppOwners {

[[nodiscard]] const QList<AppOwner>& all();

}  // namespace AppOwners
