#include "storage/FolderTally.h"

#include <algorithm>

namespace {

StorageBucket largest(const std::array<qint64, StorageBuckets::count>& byBucket)
{
    const auto found = std::max_element(byBucket.begin(), byBucket.end());
    return StorageBuckets::allCases().at(static_cast<size_t>(found - byBucket.begin()));
}

}  // namespace

void FolderTally::addFile(StorageBucket bucket, qint64 allocatedBytes)
{
    bytes += allocatedBytes;
    ownBytes += allocatedBytes;
    byBucket.at(static_cast<size_t>(bucket)) += allocatedBytes;
    ++filesByBucket.at(static_cast<size_t>(bucket));
    unlistedBytes += allocatedBytes;
    ++fileCount;
    ++unlistedFiles;
    unlistedByBucket.at(static_cast<size_t>(bucket)) += allocatedBytes;
    if (!isSmall(allocatedBytes))
        return;
    smallBytes += allocatedBytes;
    unlistedSmallBytes += allocatedBytes;
    ++unlistedSmallFiles;
}

void FolderTally::addOwnBlocks(StorageBucket bucket, qint64 allocatedBytes)
{
    bytes += allocatedBytes;
    ownBytes += allocatedBytes;
    folderBytes += allocatedBytes;
    byBucket.at(static_cast<size_t>(bucket)) += allocatedBytes;
    unlistedBytes += allocatedBytes;
    unlistedByBucket.at(static_cast<size_t>(bucket)) += allocatedBytes;
}

bool FolderTally::isLarge() const
{
    return listable && !insidePackage && unlistedSmallBytes >= largeFolderSmallBytes
        && unlistedSmallFiles >= largeFolderSmallFiles && unlistedBytes <= 2 * unlistedSmallBytes;
}

void FolderTally::absorb(const FolderTally& child, bool childListed)
{
    bytes += child.bytes;
    fileCount += child.fileCount;
    smallBytes += child.smallBytes;
    folderBytes += child.folderBytes;
    for (size_t i = 0; i < byBucket.size(); ++i) {
        byBucket[i] += child.byBucket[i];
        filesByBucket[i] += child.filesByBucket[i];
    }
    if (childListed)
        return;
    unlistedBytes += child.unlistedBytes;
    unlistedFiles += child.unlistedFiles;
    unlistedSmallBytes += child.unlistedSmallBytes;
    unlistedSmallFiles += child.unlistedSmallFiles;
    for (size_t i = 0; i < unlistedByBucket.size(); ++i)
        unlistedByBucket[i] += child.unlistedByBucket[i];
}

void FolderTally::add(const FolderTally& share)
{
    absorb(share, false);
    ownBytes += share.ownBytes;
}

FolderTally FolderTally::standing() const
{
    FolderTally empty;
    empty.kind = kind;
    empty.listable = listable;
    empty.insidePackage = insidePackage;
    return empty;
}

StorageBucket FolderTally::listedKind() const
{
    return kind ? *kind : largest(unlistedByBucket);
}

StorageBucket FolderTally::treeKind() const
{
    return kind ? *kind : largest(byBucket);
}

FolderNode::Makeup FolderTally::makeup() const
{
    return FolderNode::Makeup{byBucket, filesByBucket, smallBytes, folderBytes};
}
