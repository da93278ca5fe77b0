#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/ScanProgress.h"
#include "storage/HomeTree.h"
#include "storage/StoragePartial.h"
#include "storage/StorageReport.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

// Measures where the space of the disk goes, by kind of data, and finds the folders that are
// big because they hold thousands of small files. Only reads. Runs on the calling (worker)
// thread, walking up to six roots at once; never call it on the GUI thread.
namespace StorageAnalyzer {

inline constexpr int walksAtOnce = 6;

struct Request {
    QString home;  // no trailing "/"
    bool fullDiskAccess = true;
    std::shared_ptr<ScanProgress> progress = std::make_shared<ScanProgress>();
    CancellationToken cancellation;
    // Bytes in use on the home's volume (its capacity minus what is available); absent when
    // unknown. Read once the walks are done.
    std::function<std::optional<qint64>()> diskUsed;
    QString applications = QStringLiteral("/Applications");
    qsizetype treeNodes = HomeTree::nodesKept;
};

// The Library entries that need Full Disk Access to be read.
const QStringList& protectedLibraryEntries();

// The roots in walking order: the applications folder, every entry of the home but "Library",
// every entry of the home's Library (without the protected ones when Full Disk Access is off).
// An entry on another volume than the home (a disk mounted there) is left out.
std::vector<QByteArray> roots(const Request& request);

// The report, or absent when the request was cancelled before every root was walked.
std::optional<StorageReport> analyze(const Request& request);

// `report` with one folder of its tree (`folder`, below the home, see `FolderSplice::namesOf`)
// measured again alone and put in place; absent when cancelled or when the report's tree does
// not keep that folder. The report keeps its date: most of it was measured then.
std::optional<StorageReport> remeasure(const Request& request, StorageReport report, const QString& folder);

// Combines the walks of all roots, in root order: a file with several hard links is counted
// once, in the bucket of the first root that holds it.
StorageReport merge(std::vector<StoragePartial> partials);

}  // namespace StorageAnalyzer
