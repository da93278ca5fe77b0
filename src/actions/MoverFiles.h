#pragma once

#include <QString>

#include <optional>

#include <sys/types.h>
#include <vector>

// The file operations of a move on the destination disk: placing a copy without replacing
// anything, removing what the move made, and comparing times where the disk keeps them coarser.
// Internal to the mover; thread-safe.
namespace Mover::Files {

// The folder a move copies into, inside the destination; it never outlives the move.
inline const QString workFolderName = QStringLiteral("Dustlark unfinished move");

// Available capacity of the volume holding `path`; absent when it can't be read.
[[nodiscard]] std::optional<qint64> freeBytes(const QString& path);

// A copy put in place by this move, with the identity that proves it is still ours.
struct Placed {
    QString path;
    dev_t device = 0;
    ino_t inode = 0;
};

enum class Placement { placed, nameTaken, failed };

// Renames `from` to `to` only when nothing is at `to`: an exclusive rename, or, on file systems
// without one (exFAT and FAT through FUSE, exFAT on macOS), a check that the name is free
// followed by a plain rename. On success the copy is appended to `placed`.
[[nodiscard]] Placement place(const QString& from, const QString& to, std::vector<Placed>& placed);

// Removes `placed` copies that are still the objects this move put there.
void removePlaced(const std::vector<Placed>& placed);

// Whether the file system holding `folder` keeps modification times to the nanosecond: the
// folder's time is set to an odd value and read back.
[[nodiscard]] bool keepsExactTimes(const QString& folder);

// For disks that keep coarser times (FAT: 2 s, exFAT: 10 ms, HFS+: 1 s): every regular file of
// `original` has a file of the same size at the same place in `copy`, modified within 2 s.
[[nodiscard]] bool timesMatchCoarsely(const QString& original, const QString& copy);

}  // namespace Mover::Files
