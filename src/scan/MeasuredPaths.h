#pragma once

#include "machinery/ScanContext.h"
#include "vocabulary/FileTarget.h"

#include <QList>
#include <QStringList>

// The paths of one row measured together: allocated bytes, the newest change and a removal
// target per path still there. Paths that vanished since they were found are left out.
struct MeasuredPaths {
    qint64 bytes = 0;
    qint64 latestChange = 0;  // seconds since 1970; 0 when nothing was counted
    QList<FileTarget> targets;
    bool stopped = false;     // the scan was cancelled: the sums are partial

    // Measures one path after the other on the calling worker thread, reporting progress.
    [[nodiscard]] static MeasuredPaths of(const QStringList& paths, const ScanContext& context);
};
