#pragma once

#include <QString>

// What the screens show about emptying the Trash. A value AppModel owns and changes on the GUI
// thread, saying so with trashChanged.
struct TrashState {
    bool isEmptying = false;
    QString message;  // why the last emptying failed; empty after one that worked

    bool operator==(const TrashState&) const = default;
};
