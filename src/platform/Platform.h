#pragma once

// The few operating-system calls that differ between macOS and Linux. linux.cpp (/proc, statx)
// is compiled and tested here; mac.cpp (libproc, CoreFoundation C API, st_flags) is compiled
// only on Apple and kept small enough to be right by reading. Everything is thread-safe.

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace Platform {

// Direct children of a process; empty when they cannot be listed.
std::vector<pid_t> childProcesses(pid_t parent);

// When the process started, as seconds x 1,000,000 + microseconds since 1970; absent when
// its information cannot be read (it has ended, or is not ours to see).
std::optional<qint64> processStartTime(pid_t pid);

// The executable path of every process the person can see.
QStringList runningExecutables();

// Whether the file's content lives only in the cloud (macOS SF_DATALESS); false where the
// system has no such flag.
bool isDataless(const struct stat& info);

// The file's creation time where the file system records one (of the link itself for a
// symbolic link); absent when it has none or the path cannot be read.
std::optional<QDateTime> birthTime(const QString& path);

// Free bytes of the volume holding `path` that the system would let the person use
// ("available for important usage" on macOS); absent when it cannot be read.
std::optional<qint64> availableCapacity(const QString& path);

// Total bytes of the volume holding `path`.
std::optional<qint64> totalCapacity(const QString& path);

// One line naming this machine for an AI assistant, e.g. "macOS 14.5 on Apple M2".
QString machineDescription();

// Opens a pipe whose two ends no launched program inherits unless they are handed over
// explicitly (close-on-exec from the start where the system allows it). False, with errno
// set, when no pipe can be made.
bool openPrivatePipe(int ends[2]);

// posix_spawn flags this system adds to the portable ones. On macOS a launched tool gets only
// the descriptors handed to it, so a pipe another thread opens at the same moment never leaks
// into it; zero where the system has no such flag.
short extraSpawnFlags();

}  // namespace Platform

namespace Platform {

// Where a file's data lies, when the file system says the file shares blocks with other files
// (reflinks on Linux, clones on APFS): two files with equal keys occupy the same blocks, so
// removing one of them frees nothing. Absent when the file's blocks are not shared or the
// system cannot tell; callers then treat the file as owning its storage.
std::optional<QByteArray> sharedStorageKey(const QString& path);

}  // namespace Platform

namespace Platform {

// Renames `from` to `to` only when nothing exists at `to` (renameat2 RENAME_NOREPLACE on Linux,
// renamex_np RENAME_EXCL on macOS), so an object is never put back over another. 0 on success,
// otherwise the errno (EEXIST when the name is taken).
int renameNoReplace(const QString& from, const QString& to);

// Modification and status-change times of a status record in nanoseconds since 1970, at the
// file system's own precision.
qint64 modificationNanoseconds(const struct stat& info);
qint64 statusChangeNanoseconds(const struct stat& info);

// Whose conventions the desktop follows for the Trash, privacy settings and showing files:
// Finder's on macOS, freedesktop.org's on Linux.
enum class Desktop { finder, freedesktop };
Desktop desktop();

}  // namespace Platform

namespace Platform {

// Where git is installed, in the order to try: Apple's command line tools, Xcode, Homebrew on
// Apple silicon and on Intel; Linux adds the distribution's own.
QStringList gitCandidates();

// When the file was last opened, where the system keeps that: Spotlight's last-used date on
// macOS (it asks mdls, so call it on a worker thread); on Linux the access time, but only when
// it is newer than the modification time (otherwise it may only say the file was written).
// Absent when unknown.
std::optional<QDateTime> lastOpened(const QString& path);

}  // namespace Platform

namespace Platform {

// The folder that holds what the person moved to the Trash: "~/.Trash" on macOS, the
// freedesktop home trash's "files" folder on Linux.
QString trashFolder(const QString& home);

}  // namespace Platform
