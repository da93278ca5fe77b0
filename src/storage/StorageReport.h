#pragma once

#include "storage/FolderNode.h"
#include "storage/StorageBucket.h"

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QPair>
#include <QStringList>

#include <array>

// Where the space of the disk goes, by kind of data, from one storage analysis. A plain value;
// all byte counts are allocated bytes (blocks x 512), hard links counted once.
struct StorageReport {
    struct FileUsage {
        QString path;
        qint64 bytes = 0;
        bool operator==(const FileUsage&) const = default;
    };
    struct SubfolderUsage {
        qint64 bytes = 0;
        qint64 fileCount = 0;
        bool operator==(const SubfolderUsage&) const = default;
    };
    // One folder's share of a bucket: the root or package it stands for, its largest files and,
    // for the file-type buckets, its groups (sub-path below `path` -> usage; "" = files directly in it).
    struct FolderUsage {
        QString path;
        qint64 bytes = 0;
        QList<FileUsage> files;  // largest first, at most `filesKept`
        qint64 fileCount = 0;
        QMap<QString, SubfolderUsage> subfolders;
        bool operator==(const FolderUsage&) const = default;
    };
    // A folder that is big because of many small files. Its numbers leave out what a listed
    // folder inside it holds, so no byte is listed twice.
    struct LargeFolder {
        QString path;
        qint64 bytes = 0;
        qint64 fileCount = 0;
        qint64 smallBytes = 0;
        StorageBucket kind = StorageBucket::other;
        bool operator==(const LargeFolder&) const = default;
    };

    static constexpr int filesKept = 30;
    static constexpr int foldersKept = 200;
    static constexpr int largeFoldersKept = 100;

    QDateTime date;
    std::array<qint64, StorageBuckets::count> totals{};
    std::array<QList<FolderUsage>, StorageBuckets::count> folders;  // largest first
    QList<LargeFolder> largeFolders;                                // largest first
    qint64 diskUsed = 0;  // 0 when the volume's figures could not be read
    QStringList notes;
    bool measuredWithFullDiskAccess = true;
    // Entries the walks looked at, what the next measurement expects to read; a folder measured
    // again alone leaves it as it was.
    qint64 entries = 0;
    // The home's folders that hold a fair share of it, bounded (`HomeTree`); the applications
    // folder lies outside it.
    FolderNode tree;

    qint64 total(StorageBucket bucket) const { return totals.at(static_cast<size_t>(bucket)); }
    const QList<FolderUsage>& foldersOf(StorageBucket bucket) const { return folders.at(static_cast<size_t>(bucket)); }
    // The sum of all totals.
    qint64 measured() const;
    // The buckets with their bytes, largest first (ties in declaration order).
    QList<QPair<StorageBucket, qint64>> sortedBuckets() const;
    // The used space the walk could not attribute: diskUsed minus measured, never below zero
    // (the walk can exceed the volume's figure when a root lies on another volume or the system
    // counts purgeable space as free), and zero when diskUsed is unknown.
    qint64 notMeasured() const;
    // The totals keyed by bucket raw value, for the statistics store.
    QMap<QString, qint64> rawTotals() const;
    bool operator==(const StorageReport&) const = default;
};
