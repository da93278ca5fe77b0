#pragma once

#include <QMap>
#include <QString>

// Every entry under `root` (the root too, links not followed) with what a write would change:
// kind and mode, size, modification and status-change times, inode and link count. Two equal
// snapshots mean nothing under `root` was written, renamed, added or removed.
QMap<QString, QString> treeSnapshot(const QString& root);
