#pragma once

#include "vocabulary/HashCombine.h"

#include <QString>

// A file the walk found of at least the large-file threshold in logical length. Plain value.
struct LargeFile {
    QString path;
    qint64 size = 0;  // bytes allocated on disk

    bool operator==(const LargeFile&) const = default;
};

inline size_t qHash(const LargeFile& f, size_t seed = 0)
{
    return HashCombine(seed).add(f.path).add(f.size).result();
}
