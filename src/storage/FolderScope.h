#pragma once

#include "storage/BucketRules.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

// What a folder of the storage walk takes from the folders above it: the bucket a folder above
// forced, whether it lies in a package, which folder lists its files, and its group there. One
// rule for the walk and for measuring one folder again in the place it stands.
struct FolderScope {
    std::optional<StorageBucket> kind;  // forced by it or a folder above
    bool package = false;               // it is a package itself
    bool insidePackage = false;
    bool startsUsage = false;  // its own forced bucket lists it as a folder of that bucket
    // The folder whose usage lists its files: the nearest that forced a bucket, else the root
    // (one usage per bucket).
    QByteArray usage;
    QByteArray group;  // the first folder below `usage` on the way to it; "" for `usage` itself

    // The scope of the folder at `path`, below `parent` (null: `path` is the walk's root).
    static FolderScope enter(const FolderScope* parent, QByteArrayView path, const BucketRules& rules);
    // The scope of the folder holding `folder` when the walk starts at `root` (its ancestor or
    // itself); absent when `folder` does not lie in `root`.
    static std::optional<FolderScope> above(const QByteArray& root, const QByteArray& folder, const BucketRules& rules);
};
