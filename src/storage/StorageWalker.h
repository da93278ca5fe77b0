#pragma once

#include "machinery/CancellationToken.h"
#include "storage/BucketRules.h"
#include "storage/HomeTree.h"
#include "storage/StoragePartial.h"

#include <QByteArray>

class ScanProgress;
struct FolderScope;

// Walks one root of the storage analysis: physically (symbolic links are never followed),
// without changing the working directory, on the root's volume only (a disk mounted inside is
// not counted). Every entry is counted by its allocated size into the bucket of the folder that
// forces one, or of its own extension; folders big because of small files are listed on the way
// up. Beside the per-bucket lists only a bounded folder tree stays in memory (about
// `treeNodes` folders, the largest). A big root is walked on up to `threads` threads (SplitWalk)
// with the same outcome as on one. Only one walk knows which link of a hard-linked file comes
// first: once the pieces joined so far show two that met the same file, the split walk stops and
// the root is walked again on one thread. One walker serves one calling thread; `progress` and
// `cancellation` may be null.
class StorageWalker {
public:
    StorageWalker(const BucketRules& rules, ScanProgress* progress, const CancellationToken* cancellation,
                  qsizetype treeNodes = HomeTree::nodesKept, int threads = 2);

    // A missing or unreadable root gives an empty partial. `above`, when given, is the scope of
    // the folder holding `root`: the walk of a folder below a root of the analysis counts as
    // that folder's part of the root's walk.
    [[nodiscard]] StoragePartial walk(const QByteArray& root, const FolderScope* above = nullptr) const;

private:
    const BucketRules& m_rules;
    ScanProgress* m_progress;
    const CancellationToken* m_cancellation;
    qsizetype m_treeNodes;
    int m_threads;
};
