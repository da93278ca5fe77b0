#pragma once

#include "vocabulary/HashCombine.h"

#include <QString>

// A build folder the walk proved to belong to a project ("node_modules" beside a
// "package.json", a Rust "target", ...). Plain value.
struct Artifact {
    QString path;     // the build folder, absolute
    QString name;     // its last path component, e.g. "node_modules"
    QString project;  // the folder that holds it

    bool operator==(const Artifact&) const = default;
};

inline size_t qHash(const Artifact& a, size_t seed = 0)
{
    return HashCombine(seed).add(a.path).add(a.name).add(a.project).result();
}
