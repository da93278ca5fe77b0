#pragma once

#include "vocabulary/CategoryID.h"

#include <optional>

// A screen of the main window.
struct SidebarDestination {
    enum class Kind { category, overview, storage, largeFolders, safeList, about };

    Kind kind = Kind::overview;
    std::optional<CategoryID> category;  // set exactly when kind is category

    static SidebarDestination of(CategoryID id) { return {Kind::category, id}; }
    static SidebarDestination screen(Kind kind) { return {kind, std::nullopt}; }

    bool operator==(const SidebarDestination&) const = default;
};
