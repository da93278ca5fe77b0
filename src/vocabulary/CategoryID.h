#pragma once

#include "platform/Platform.h"

#include <QHash>
#include <QList>
#include <QString>

#include <array>
#include <optional>

// The 22 cleanup categories. Declaration order is the sidebar order and the scan order;
// the first ten form the developer group, the rest the everyday group.
enum class CategoryID : int {
    projects, worktrees, xcode, simulators, android, packageCaches, editors, docker, aiModels,
    aiAgents, apps, leftovers, appCaches, logs, browserCaches, installers, oldDownloads,
    temporary, largeFiles, duplicates, devices, trash,
};

enum class CleanerGroup : int { developer, everyday };

namespace Categories {

inline constexpr int count = 22;

const std::array<CategoryID, count>& allCases();

// The case name, e.g. "packageCaches".
QString rawValue(CategoryID category);
// Case-sensitive; absent for any text that is not a case name.
std::optional<CategoryID> fromRawValue(const QString& raw);

QString title(CategoryID category);
QString systemImage(CategoryID category);
// The text above the category's list, with its thresholds and day counts filled in, in the
// words of `desktop`'s system (the Linux edition speaks of its own folders, not a Mac's).
QString explanation(CategoryID category, Platform::Desktop desktop = Platform::desktop());
// False for the categories whose tools exist only on macOS (Xcode, its simulators, iPhone and
// iPad backups): on Linux they can never fill, and the sidebar sets them apart.
bool canFill(CategoryID category, Platform::Desktop desktop = Platform::desktop());
CleanerGroup group(CategoryID category);

}  // namespace Categories

namespace CleanerGroups {

const std::array<CleanerGroup, 2>& allCases();
// The group's categories in declaration order.
QList<CategoryID> categories(CleanerGroup group);
// The sidebar heading ("Developer").
QString title(CleanerGroup group);
// The overview's name for the group ("Developer Cleaner").
QString overviewTitle(CleanerGroup group);

}  // namespace CleanerGroups

inline size_t qHash(CategoryID category, size_t seed = 0) noexcept
{
    return ::qHash(static_cast<int>(category), seed);
}
