#pragma once

#include <QString>

#include <array>
#include <optional>

// The kinds of data the storage breakdown sorts the disk into. Declaration order is the
// documented order; the raw value is the case name.
enum class StorageBucket : int {
    apps, developer, photos, videos, music, documents, archives, deviceBackups, mail, appData, trash, other,
};

namespace StorageBuckets {

inline constexpr int count = 12;

const std::array<StorageBucket, count>& allCases();
QString rawValue(StorageBucket bucket);
// Case-sensitive; absent for any text that is not a case name.
std::optional<StorageBucket> fromRawValue(const QString& raw);
QString title(StorageBucket bucket);
// The file-type buckets, whose folders are broken down into sub-folder groups.
bool hasSubfolders(StorageBucket bucket);
// The name of what the walk cannot see (the system, other accounts, protected data).
QString remainderTitle();

}  // namespace StorageBuckets
