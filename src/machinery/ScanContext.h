#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/RunningPrograms.h"
#include "machinery/ScanProgress.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

// Everything a scanner may know about the scan it runs in. Handed by value to every scanner;
// read-only except for the shared progress.
struct ScanContext {
    QString home;                 // the home folder, no trailing "/"
    QStringList roots;            // the scan folders
    std::shared_ptr<ScanProgress> progress = std::make_shared<ScanProgress>();
    QDateTime now = QDateTime::currentDateTimeUtc();  // every age rule measures from here
    bool fullDiskAccess = true;
    QSet<QString> safeFolders;
    CancellationToken cancellation;
    // Read once per scan by whichever scanner asks first; shared by the context's copies.
    std::shared_ptr<const RunningPrograms> runningPrograms = std::make_shared<RunningPrograms>();

    bool isCancelled() const { return cancellation.isCancelled(); }
};
