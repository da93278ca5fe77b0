#pragma once

#include <QString>

#include <optional>

// What the screens show about emptying the Trash. A value AppModel owns and changes on the GUI
// thread, saying so with trashChanged.
struct TrashState {
    bool isEmptying = false;
    int removed = 0;                // items removed so far by the running emptying
    std::optional<int> total;       // how many it removes; absent until known (Finder never says)
    bool stopRequested = false;     // Stop was pressed; it takes effect between items
    QString message;                // why the last emptying ended early; empty after one that worked

    bool operator==(const TrashState&) const = default;
};
