#pragma once

#include "vocabulary/CleanupItem.h"

#include <QString>

// How sheets and results name a row so a person knows what goes.
namespace ItemName {

// The row's title, or, for a folder inside the project the row is titled after,
// "node_modules in ~/Projects/app". `home` becomes "~".
[[nodiscard]] QString of(const CleanupItem& item, const QString& home);

// "node_modules in ~/Projects/app": the last name of `path` and the folder that holds it.
[[nodiscard]] QString inFolder(const QString& path, const QString& home);

}  // namespace ItemName
