#pragma once

#include <QString>

#include <functional>
#include <optional>

// What one move to the Trash reports.
struct TrashResult {
    std::optional<QString> pathInTrash;  // where the object now is; absent when it was not moved
    QString error;                       // the system's description when it was not moved
    bool permissionDenied = false;       // it failed because its folder isn't writable

    [[nodiscard]] bool moved() const { return pathInTrash.has_value(); }
};

// Moves one path to the Trash. The remover's seam: the default is SystemTrash::move; tests put
// a wrapper around it to observe or race the move. Must never delete anything.
using TrashOperation = std::function<TrashResult(const QString& path)>;
