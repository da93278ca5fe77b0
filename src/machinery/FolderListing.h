#pragma once

#include <QByteArrayList>

#include <optional>

// The names in one open folder, for code that acts entry by entry relative to the folder's
// descriptor (never by path). Thread-safe.
namespace FolderListing {

// The names in `folder`, "." and ".." left out, read through a descriptor of its own so the
// caller's is untouched; absent when the folder can't be listed completely.
[[nodiscard]] std::optional<QByteArrayList> names(int folder);

}  // namespace FolderListing
