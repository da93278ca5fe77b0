#pragma once

#include "machinery/CancellationToken.h"

#include <QString>

// The byte check of a copy: each copied file is read back from the destination disk, not from
// what the system still caches of the copying, and its digest compared with the original's. A
// failing disk can hand back other bytes under the same size and times. Internal to the mover;
// blocks its worker thread.
namespace Mover::ReadBack {

enum class Verdict {
    same,                // every file of the copy holds its original's bytes
    copyDiffers,         // a copied file read back differently, or could not be read back
    originalUnreadable,  // a file of the original could not be opened or read
    stopped,
};

// Compares every regular file below `copy` with the file at the same place below `original`
// (each read once). Neither side's links are followed.
[[nodiscard]] Verdict compare(const QString& original, const QString& copy, const CancellationToken* stop);

}  // namespace Mover::ReadBack
