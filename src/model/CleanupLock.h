#pragma once

#include "machinery/Descriptor.h"

#include <QString>

#include <optional>

// Only one cleanup removes files at a time on this computer, the app's or the report tool's:
// an exclusive lock (flock) on a file in the app's data folder, held while the object lives.
// The system lets go of it when the process ends, however it ends, so a crash leaves no stale
// lock. Locks of two objects exclude each other also within one process. Movable, not copyable.
class CleanupLock {
public:
    // The lock, or absent at once with `reason` set: another cleanup holds it (`isBusy`), or
    // the file can't be made.
    [[nodiscard]] static std::optional<CleanupLock> acquire(const QString& path, QString* reason, bool* isBusy = nullptr);
    // "cleanup.lock" in the app's data folder, the same for every program of the app.
    [[nodiscard]] static QString defaultPath();
    // Why a cleanup didn't start while another one removes files.
    [[nodiscard]] static QString busyReason();

private:
    explicit CleanupLock(Descriptor file) : m_file(std::move(file)) {}

    Descriptor m_file;
};
