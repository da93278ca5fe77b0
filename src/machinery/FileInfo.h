#pragma once

#include <QString>
#include <QStringList>

// Plain directory facts the scanners ask for outside a traversal. Thread-safe.
namespace FileInfo {

// The names in `directory` as the system lists them (unsorted, without "." and ".."); empty
// when the folder is missing or cannot be read.
[[nodiscard]] QStringList children(const QString& directory);

// Whether `directory` can be opened for listing: tells an empty folder from one we may not read.
[[nodiscard]] bool canList(const QString& directory);

}  // namespace FileInfo
