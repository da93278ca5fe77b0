#pragma once

#include "machinery/Descriptor.h"

#include <QByteArray>
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
    changed,              // a folder above it was swapped, renamed or removed between two looks
    missing,              // the final entry is not there
};

struct Finding {
    Verdict verdict = Verdict::folderUnreadable;
    // Identity of the final entry (not followed), read through its folder's descriptor; valid
    // only when `verdict` is ok.
    qint32 device = 0;
    quint64 inode = 0;
};

// The folder that holds a path's final entry, opened through descriptors, and that entry's
// name as the system spells it. Whatever happens to the path string afterwards, `folder` stays
// the folder that was checked.
struct OpenedParent {
    Verdict verdict = Verdict::folderUnreadable;  // ok, or why the folder could not be opened
    Descriptor folder;
    QByteArray name;
};

// `path` must be absolute.
[[nodiscard]] Finding examine(const QString& path);

// Opens the folder above `path` (absolute) without following any symbolic link; the final
// entry itself is neither opened nor required to exist.
[[nodiscard]] OpenedParent openParent(const QString& path);

// True when `name` (from a decoded path) could stand for more than one entry of `folder`: it
// holds the replacement character and the folder has an entry whose bytes are not valid text
// and decode to the same name. Such a name can't say which object it means.
[[nodiscard]] bool isAmbiguousName(int folder, const QByteArray& name);

}  // namespace SecurePath
