#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/FileTarget.h"

#include <QList>

#include <optional>

// Moves the file targets of one item to the Trash: every target is checked first, then each is
// moved and what arrived in the Trash is confirmed to be the object that was checked. Runs on
// the removing worker thread; blocks it.
namespace TrashMove {

// Moved to the Trash, or failed with the first reason. A failure never turns into a deletion;
// targets moved before a later one failed stay in the Trash.
[[nodiscard]] RemovalOutcome moveAll(const QList<FileTarget>& targets, const RemovalEnvironment& environment,
                                     const std::optional<QString>& projectPath = std::nullopt);

// Moves one target that already passed its checks. Nothing on success, otherwise the reason.
[[nodiscard]] std::optional<QString> moveOne(const FileTarget& target, const RemovalEnvironment& environment);

}  // namespace TrashMove
