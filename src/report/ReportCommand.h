#pragma once

#include "report/ReportOptions.h"
#include "report/ScanReport.h"
#include "storage/StorageAnalyzer.h"

#include <QSet>
#include <QSettings>

// What the report tool does for one command line: build the context, run the scanners that
// fill the asked categories, filter like the app, and render. Never changes anything on disk.
namespace ReportCommand {

struct Protection {
    QSet<QString> safeItemIds;
    QStringList protectedPaths;
    QStringList safeFolders;
    QStringList scanRoots;  // used when no --home and no --root is given
};

// The person's stored scan folders and Safe List, read through the settings store.
Protection storedProtection(QSettings* settings);

// The scan's context: the home (--home, else the person's), the --roots (else --home, else the
// stored scan folders), the stored safe folders.
ScanContext makeContext(const ReportOptions& options, const Protection& protection);

ScanReport::Results scan(const ReportOptions& options, const Protection& protection);

// The storage analysis of `options.home` (the person's home by default) with the volume's used
// space; absent only if it was cancelled.
std::optional<StorageReport> storage(const ReportOptions& options);

// Runs the command and returns the exit status; output goes to stdout, errors to stderr.
int run(const QStringList& arguments);

}  // namespace ReportCommand
