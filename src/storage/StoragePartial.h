#pragma once

#include "machinery/FileSizer.h"
#include "storage/StorageReport.h"

#include <QHash>

#include <array>

// What the walk of one root found, merged with the other roots' once all are walked.
struct StoragePartial {
    struct LinkedFile {
        StorageBucket bucket = StorageBucket::other;
        qint64 bytes = 0;
    };

    // Bytes per bucket, without the files that have more than one hard link: those are in
    // `links`, so the merge counts each of them once across every root.
    std::array<qint64, StorageBuckets::count> totals{};
    std::array<QHash<QString, StorageReport::FolderUsage>, StorageBuckets::count> folders;  // by path
    QHash<FileKey, LinkedFile> links;
    QList<StorageReport::LargeFolder> largeFolders;
    qint64 unreadableFolders = 0;
    bool complete = true;  // false when the walk was stopped
};
