#pragma once

#include "vocabulary/HashCombine.h"

#include <QtGlobal>

// A summary of a folder tree, equal for two walks exactly when nothing in the tree changed
// in a way that matters (files, sizes, times, layout). The remover compares it before acting.
struct TreeStamp {
    qint64 files = 0;
    qint64 bytes = 0;
    qint64 unreadable = 0;
    qint64 latestChange = 0;  // newest modification time, seconds since 1970
    quint64 layout = 0;       // hash of relative paths and kinds
    quint64 stamps = 0;       // hash of each file's relative path, size and modification time
    quint64 statusStamps = 0; // hash of each entry's status-change time

    bool operator==(const TreeStamp&) const = default;

    // Adds the stamp of another part of the same tree, walked apart: every hash is a sum over
    // entries, so the parts add up to the stamp of one walk.
    TreeStamp& operator+=(const TreeStamp& part)
    {
        files += part.files;
        bytes += part.bytes;
        unreadable += part.unreadable;
        latestChange = latestChange > part.latestChange ? latestChange : part.latestChange;
        layout += part.layout;
        stamps += part.stamps;
        statusStamps += part.statusStamps;
        return *this;
    }
};

inline size_t qHash(const TreeStamp& t, size_t seed = 0)
{
    return HashCombine(seed).add(t.files).add(t.bytes).add(t.unreadable).add(t.latestChange)
        .add(t.layout).add(t.stamps).add(t.statusStamps).result();
}
