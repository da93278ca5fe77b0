#include "storage/FolderTally.h"

#include <algorithm>

void FolderTally::addFile(StorageBucket bucket, qint64 allocatedBytes)
{
    bytes += allocatedBytes;
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
    if (childListed)
        return;
    unlistedBytes += child.unlistedBytes;
    unlistedFiles += child.unlistedFiles;
    unlistedSmallBytes += child.unlistedSmallBytes;
    unlistedSmallFiles += child.unlistedSmallFiles;
    for (size_t i = 0; i < unlistedByBucket.size(); ++i)
        unlistedByBucket[i] += child.unlistedByBucket[i];
}

StorageBucket FolderTally::listedKind() const
{
    if (kind)
        return *kind;
    const auto largest = std::max_element(unlistedByBucket.begin(), unlistedByBucket.end());
    return StorageBuckets::allCases().at(static_cast<size_t>(largest - unlistedByBucket.begin()));
}
