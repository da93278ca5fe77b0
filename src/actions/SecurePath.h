#pragma once

#include <QString>
#include <QtGlobal>

// Examines a path the way an attacker can't fool with a string: every folder above it is opened
// through a descriptor from "/" down, never following a symbolic link, and compared with what
// lstat says of the same path. Thread-safe; keeps no state.
namespace SecurePath {

enum class Verdict {
    ok,
    throughSymbolicLink,  // a folder above it is (or became) a symbolic link
    folderUnreadable,     // a folder above it can't be opened or examined
    changed,              // a folder above it was swapped between two looks
    missing,              // the final entry is not there
};

struct Finding {
    Verdict verdict = Verdict::folderUnreadable;
    // Identity of the final entry (not followed), read through its folder's descriptor; valid
    // only when `verdict` is ok.
    qint32 device = 0;
    quint64 inode = 0;
};

// `path` must be absolute.
[[nodiscard]] Finding examine(const QString& path);

}  // namespace SecurePath
