#pragma once

#include "machinery/FileSizer.h"
#include "storage/FolderNode.h"
#include "storage/StorageReport.h"

#include <QHash>

#include <array>

// What the walk of one root found, merged with the other roots' once all are walked.
struct StoragePartial {
    struct LinkedFile {
        StorageBucket bucket = StorageBucket::other;
        qint64 bytes = 0;
        qsizetype folder = -1;  // where the walk counted it: an index into `linkFolders`
    };

    // Bytes per bucket, without the files that have more than one hard link: those are in
    // `links`, so the merge counts each of them once across every root.
    std::array<qint64, StorageBuckets::count> totals{};
    std::array<QHash<QString, StorageReport::FolderUsage>, StorageBuckets::count> folders;  // by path
    QHash<FileKey, LinkedFile> links;
    // Folders holding hard-linked files, by raw path from the folder that holds the root
    // ("" for that folder itself), so the merge can take a file counted by an earlier root out
    // of this root's tree.
    std::vector<QByteArray> linkFolders;
    // The folder that holds the root, with the root's tree as its one child.
    FolderNode tree;
    QList<StorageReport::LargeFolder> largeFolders;
    qint64 unreadableFolders = 0;
    qint64 entries = 0;  // files, folders and links looked at
    bool complete = true;  // false when the walk was stopped
};
