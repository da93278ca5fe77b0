#pragma once

#include "machinery/FileKey.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// The file operations of a move on the destination disk, all relative to folders the move holds
// open: placing a copy without replacing anything, removing what the move made, and comparing
// times where the disk keeps them coarser. Internal to the mover; thread-safe.
namespace Mover::Files {

// The folder a move copies into, inside the destination; it never outlives the move.
inline const QString workFolderName = QStringLiteral("Dustlark unfinished move");

// Available capacity of the volume holding `path`; absent when it can't be read.
[[nodiscard]] std::optional<qint64> freeBytes(const QString& path);

// An entry this move made in a folder it holds, with the identity that proves it is still ours.
struct Made {
    QByteArray name;
    FileKey key;
};

enum class Placement { placed, nameTaken, failed };

// Renames `name` from `workFolder` to the same name in `destinationFolder` only when nothing is
// there: an exclusive rename, or, on file systems without one (exFAT and FAT through FUSE, exFAT
// on macOS), a check that the name is free followed by a plain rename. On success the copy is
// appended to `placed`.
[[nodiscard]] Placement place(int workFolder, int destinationFolder, const QByteArray& name, std::vector<Made>& placed);

// Removes what this move made in `folder`, only while the name still holds that object. True when
// nothing of it is left there.
[[nodiscard]] bool removeMade(int folder, const Made& made);

// Whether the file system holding the open folder `folder` keeps modification times to the
// nanosecond: the folder's time is set to an odd value and read back.
[[nodiscard]] bool keepsExactTimes(int folder);

// For disks that keep coarser times (FAT: 2 s, exFAT: 10 ms, HFS+: 1 s): every regular file of
// `original` has a file of the same size at the same place in `copy`, modified within 2 s.
[[nodiscard]] bool timesMatchCoarsely(const QString& original, const QString& copy);

}  // namespace Mover::Files
