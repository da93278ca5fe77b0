#pragma once

#include "storage/FolderNode.h"
#include "storage/StoragePartial.h"

#include <QByteArray>

#include <vector>

// The home folder's tree, assembled from the walks of its roots once every root is walked.
namespace HomeTree {

// A folder is kept when it holds at least this share of the home (1/2000, 0.05%) ...
inline constexpr qint64 shareDivisor = 2'000;
// ... and the tree holds at most this many folders, the home included.
inline constexpr qsizetype nodesKept = 20'000;

// The home with its entries and its Library's entries as they were walked. `partials` follow
// `roots` (the analysis's root order, which may start outside the home); their trees are moved
// out. A hard-linked file is counted in the first root that holds it and taken out of the
// others, as in the totals. Roots outside the home count only for that.
FolderNode assemble(const QByteArray& home, const std::vector<QByteArray>& roots, std::vector<StoragePartial>& partials,
                    qsizetype limit = nodesKept);

// A folder made of roots (the home, its Library) shows the kind of the most bytes among them.
void settleKind(FolderNode& node);

// Folds every folder below the kept share of `tree`'s bytes, then, while more than `limit`
// folders remain, the smallest; children end up largest first.
void bound(FolderNode& tree, qsizetype limit = nodesKept);

}  // namespace HomeTree
