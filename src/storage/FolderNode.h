#pragma once

#include "storage/StorageBucket.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

// One folder of the storage analysis's bounded tree. Its bytes are exactly its kept
// sub-folders' bytes plus `ownBytes` plus `foldedBytes`; hard links are counted once, where the
// walk met them first.
struct FolderNode {
    // What lies below the folder by kind, for splicing a folder measured again into a report
    // without walking the rest: the totals move by exactly the difference.
    struct Makeup {
        std::array<qint64, StorageBuckets::count> kindBytes{};
        std::array<qint64, StorageBuckets::count> kindFiles{};
        qint64 smallBytes = 0;   // in small files
        qint64 folderBytes = 0;  // the blocks of the folders themselves (and of unreadable ones)

        void add(const Makeup& other, qint64 sign = 1);
        bool operator==(const Makeup&) const = default;
    };

    QString name;
    qint64 bytes = 0;
    qint64 fileCount = 0;    // everything below it that is not a folder
    qint64 ownBytes = 0;     // its files and its own blocks
    qint64 foldedBytes = 0;  // sub-folders too small to keep, each counted whole
    StorageBucket kind = StorageBucket::other;
    std::vector<FolderNode> children;  // largest first
    Makeup makeup{};

    bool operator==(const FolderNode&) const = default;

    // This node and every node below it.
    [[nodiscard]] qsizetype nodeCount() const;
    // The node reached by following `names` down from this one, or null.
    [[nodiscard]] const FolderNode* find(const QStringList& names) const;
    [[nodiscard]] FolderNode* find(const QStringList& names);
    // Largest first, ties by name, at every level.
    void sortChildren();
    // Folds every sub-folder at or below `floor` bytes into its parent's folded bytes. The kept
    // ones stay a tree from this node down, since no folder holds more than its parent.
    void foldAtOrBelow(qint64 floor);
};
