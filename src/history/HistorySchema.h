#pragma once

#include <QSqlDatabase>
#include <QStringList>

// The tables of the history file, versioned by SQLite's user_version. Each version is reached
// from the one before by its own statements, so a file of any earlier version is brought up to
// date in place and a new file runs them all.
namespace HistorySchema {

// Version 1 kept each scan's totals; version 2 added item counts and the storage folder lists.
inline constexpr int current = 2;

// The statements that turn a file of `version - 1` into `version` (1 starts from an empty file).
QStringList steps(int version);

// Brings `database` from `from` to `current` inside the caller's transaction and sets
// user_version; false with the driver's sentence in `error` when a statement fails.
bool upgrade(QSqlDatabase& database, int from, QString* error);

}  // namespace HistorySchema
