#pragma once

#include "storage/StorageBucket.h"

#include <QString>
#include <QStringList>

#include <vector>

// One folder of the storage analysis's bounded tree. Its bytes are exactly its kept
// sub-folders' bytes plus `ownBytes` plus `foldedBytes`; hard links are counted once, where the
// walk met them first.
struct FolderNode {
    QString name;
    qint64 bytes = 0;
    qint64 fileCount = 0;    // everything below it that is not a folder
    qint64 ownBytes = 0;     // its files and its own blocks
    qint64 foldedBytes = 0;  // sub-folders too small to keep, each counted whole
    StorageBucket kind = StorageBucket::other;
    std::vector<FolderNode> children;  // largest first

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
