#pragma once

// The few operating-system calls that differ between macOS and Linux. linux.cpp (/proc, statx)
// is compiled and tested here; mac.cpp (libproc, CoreFoundation C API, st_flags) is compiled
// only on Apple and kept small enough to be right by reading. Paths and tool command lines that
// differ by system are data and live above this floor; this header includes nothing of ours.
// Everything is thread-safe.

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace Platform {

// ---- Which system this is ----

// Whose conventions the desktop follows for the Trash, privacy settings and showing files:
// Finder's on macOS, freedesktop.org's on Linux. Tables of system-specific places pick their
// rows by it.
enum class Desktop { finder, freedesktop };
Desktop desktop();

// One line naming this machine for an AI assistant, e.g. "macOS 14.5 on Apple M2".
QString machineDescription();

// A string of the running app's own Info.plist ("CFBundleShortVersionString", "CFBundleVersion",
// "CFBundleIdentifier"); empty when the key is missing. The Linux build has no bundle and answers
// these three keys with the values CMake compiled in.
QString bundleValue(const QString& key);

// ---- Processes ----

// When the process started, as seconds x 1,000,000 + microseconds since 1970, also for a
// zombie; absent when its information cannot be read (it was collected, or on macOS it is
// another user's).
std::optional<qint64> processStartTime(pid_t pid);

// The executable path of every process the person can see.
QStringList runningExecutables();

// The command line of every process the person can see, its arguments joined by spaces as
// `ps -o command=` prints them (processes without arguments, such as kernel threads, left out).
// Absent when the system would not say (then ps is run instead).
std::optional<QStringList> runningCommandLines();

// Makes this process the adopter of its descendants' orphans (a Linux child subreaper), so a
// tool's grandchild whose parent exited stays findable and can be stopped. False where the
// system has no such notion (macOS: orphans go to launchd and are found by process group).
bool adoptOrphans();

// One row of the system's process table.
struct ProcessEntry {
    pid_t pid = 0;
    pid_t parent = 0;
    pid_t group = 0;      // process group
    bool ended = false;   // a zombie: ended, not yet collected by its parent
    bool operator==(const ProcessEntry&) const = default;
};

// Every process of the system's table (on macOS, one whose record the system refuses is left
// out), zombies included, read in one pass; empty when the table can't be read.
std::vector<ProcessEntry> processTable();

// Opens a pipe whose two ends no launched program inherits unless they are handed over
// explicitly (close-on-exec from the start where the system allows it). False, with errno
// set, when no pipe can be made.
bool openPrivatePipe(int ends[2]);

// posix_spawn flags this system adds to the portable ones. On macOS a launched tool gets only
// the descriptors handed to it, so a pipe another thread opens at the same moment never leaks
// into it; zero where the system has no such flag.
short extraSpawnFlags();

// Gives the calling thread a descriptor table of its own holding only the standard streams:
// copies of everything else that was open are closed at once, so that no pipe end or file
// another thread opened is held past that moment. The kernel then takes no reference on a
// folder at each lookup relative to it, as it does while threads share one table (about 3% of
// a walk's processor time). Only for a thread made for one piece of work that ends with it,
// never handed a descriptor from elsewhere and leaving none for others; the threads it starts
// share its table. False where the system has no such table (macOS) or refused, and then
// nothing changed.
bool ownDescriptorTable();

// ---- Applications ----

// The path of an installed application with this bundle identifier, as the system's
// application registry knows it (LaunchServices on macOS); absent when none is known. Linux
// has no such registry and always answers absent.
std::optional<QString> applicationForBundleIdentifier(const QString& bundleIdentifier);

// ---- Files ----

// Appends the names in the open folder `folder` to `names`, each followed by '\0', leaving out
// "." and "..". The descriptor stays the caller's, its read position at the end. On Linux the
// listing is read with getdents64 straight into a buffer (no stream, no status or flag calls of
// its own: a walk lists every folder, so these add up); on macOS through a stream over a
// duplicate. 0, or the errno of a read that failed part way (what was read stays appended).
int readFolderNames(int folder, std::string& names);

// Whether the file's content lives only in the cloud (macOS SF_DATALESS); false where the
// system has no such flag.
bool isDataless(const struct stat& info);

// The file's creation time where the file system records one (of the link itself for a
// symbolic link); absent when it has none or the path cannot be read.
std::optional<QDateTime> birthTime(const QString& path);

// The system's own per-user temporary folder (confstr's per-user temporary-directory name on
// macOS); absent where the system keeps none of its own.
std::optional<QString> userTempFolder();

// The creation time of `name` inside the open folder `folder` (AT_FDCWD for a path), in
// nanoseconds since 1970, of a final symbolic link itself; absent where the file system keeps
// none (statx btime on Linux, st_birthtime on macOS).
std::optional<qint64> birthNanosecondsAt(int folder, const char* name);

// Modification, status-change and access times of a status record in nanoseconds since 1970,
// at the file system's own precision (the fields are named differently on each system).
qint64 modificationNanoseconds(const struct stat& info);
qint64 statusChangeNanoseconds(const struct stat& info);
qint64 accessNanoseconds(const struct stat& info);

// Where a file's data lies, when the file system says the file shares blocks with other files
// (reflinks on Linux, clones on APFS): two files with equal keys occupy the same blocks, so
// removing one of them frees nothing. Absent when the file's blocks are not shared or the
// system cannot tell; callers then treat the file as owning its storage.
std::optional<QByteArray> sharedStorageKey(const QString& path);

// Renames `from` to `to` only when nothing exists at `to` (renameat2 RENAME_NOREPLACE on Linux,
// renamex_np RENAME_EXCL on macOS), so an object is never put back over another. 0 on success,
// otherwise the errno (EEXIST when the name is taken).
int renameNoReplace(const QString& from, const QString& to);

// renameNoReplace between two open folders: `from` inside `fromFolder` becomes `to` inside
// `toFolder`, only when `to` is free. 0 on success, otherwise the errno (EXDEV across volumes).
int renameNoReplaceAt(int fromFolder, const char* from, int toFolder, const char* to);

// Sets the mode of the entry `name` of the open folder `folder`, only while it is the object
// `listed` describes and never through a symbolic link, for an entry that can't be opened to
// use fchmod (a folder its owner may not read). Linux pins the object first (O_PATH) and
// changes it through its descriptor; macOS, which has no such pin, compares the identity and
// then changes the entry by name without following a link. 0 on success, else the errno.
int changeModeAt(int folder, const char* name, const struct stat& listed, mode_t mode);

// Opens `name` inside the open folder `folder` (a final symbolic link is not followed) for
// reading what the disk itself holds, not what the system still caches: the file's writes are
// flushed first (fsync), then its cached pages are dropped (Linux: posix_fadvise DONTNEED) or
// caching is turned off for its reads (macOS: F_NOCACHE). The descriptor, or -1 with errno set.
int openReadingFromDisk(int folder, const char* name);

// ---- The desktop ----

// Asks the desktop's file manager to show `path` selected (org.freedesktop.FileManager1's
// ShowItems over the session's D-Bus on Linux). False when no file manager answered; always
// false on macOS, where Finder is asked with `open -R` instead. Blocks for up to three seconds:
// call it on a worker thread.
bool showItemInFileManager(const QString& path);

// ---- Volumes ----

// Free bytes of the volume holding `path` (statvfs on Linux, the volume's available capacity on
// macOS): what a copy onto that volume can fill. Absent when it cannot be read.
std::optional<qint64> availableCapacity(const QString& path);

// The free bytes the startup disk offers the person: on macOS "available for important usage",
// which adds what the system purges on demand; where a volume answers nothing or 0 for it (any
// volume but APFS), and on Linux, the plain available capacity.
std::optional<qint64> availableCapacityForImportantUsage(const QString& path);

// Whether the file system holding `path` keeps extended attributes of its own; false where
// macOS would keep them in "._name" files beside each file (exFAT, FAT) or Linux refuses them.
// True when it cannot be told.
bool keepsExtendedAttributes(const QString& path);

// Total bytes of the volume holding `path`.
std::optional<qint64> totalCapacity(const QString& path);

}  // namespace Platform
