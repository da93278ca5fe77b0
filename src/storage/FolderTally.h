#pragma once

#include "storage/FolderNode.h"
#include "storage/StorageBucket.h"

#include <array>
#include <optional>

// The numbers of one open folder during the storage walk. On leaving a folder its numbers are
// added to its parent's; the "unlisted" numbers leave out whatever lies inside a descendant that
// was already listed as a large folder, so no byte is listed twice up the tree.
struct FolderTally {
    static constexpr qint64 smallFileLimit = 1'000'000;          // a small file allocates less
    static constexpr qint64 largeFolderSmallBytes = 100'000'000;  // a large folder holds at least
    static constexpr qint64 largeFolderSmallFiles = 1'000;        // ... in at least this many small files

    std::optional<StorageBucket> kind;  // the bucket the folder forces, if any
    bool listable = true;
    bool insidePackage = false;
    qint64 bytes = 0;
    qint64 fileCount = 0;
    qint64 smallBytes = 0;
    qint64 ownBytes = 0;  // its files and its own blocks, without its sub-folders
    qint64 unlistedBytes = 0;
    qint64 unlistedFiles = 0;
    qint64 unlistedSmallBytes = 0;
    qint64 unlistedSmallFiles = 0;
    std::array<qint64, StorageBuckets::count> unlistedByBucket{};
    std::array<qint64, StorageBuckets::count> byBucket{};
    std::array<qint64, StorageBuckets::count> filesByBucket{};
    qint64 folderBytes = 0;  // its own blocks and its sub-folders'

    static bool isSmall(qint64 allocatedBytes) { return allocatedBytes < smallFileLimit; }

    void addFile(StorageBucket bucket, qint64 allocatedBytes);
    // The folder's own blocks (its list of names): counted in its bytes, not as a file.
    void addOwnBlocks(StorageBucket bucket, qint64 allocatedBytes);
    // Whether, on leaving, the folder is a large folder of small files: listable, enough small
    // bytes in enough small files, and small files at least half of what it holds unlisted.
    bool isLarge() const;
    // Adds a child that has just been left; a listed child adds nothing to the unlisted numbers.
    void absorb(const FolderTally& child, bool childListed);
    // Adds the numbers of the same folder counted in another piece of a split walk.
    void add(const FolderTally& share);
    // A tally with nothing counted yet that decides as this one does (kind, package, listing).
    [[nodiscard]] FolderTally standing() const;
    // The bucket a listing shows: the forced one, else the one holding most unlisted bytes.
    StorageBucket listedKind() const;
    // The bucket the folder tree shows: the forced one, else the one holding most bytes.
    StorageBucket treeKind() const;
    // Its numbers by kind, as the folder tree keeps them.
    FolderNode::Makeup makeup() const;
};
