#pragma once

#include "vocabulary/FileTarget.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <optional>

// One object to move to the Trash, pinned by the descriptor of the folder it was checked in:
// the move acts on that folder, never on the path string again, and accepts only the object
// with the checked identity.
struct TrashRequest {
    QString path;      // the original, absolute; recorded in the Trash and used where only a path will do
    int folder = -1;   // its folder, opened without following links and held by the caller
    QByteArray name;   // its name in `folder`
    FileTarget object;  // the object that was checked; only its identity counts here
};

// What one move to the Trash reports.
struct TrashResult {
    std::optional<QString> pathInTrash;  // where the object now is; absent when it was not moved
    QString error;                       // one sentence when it was not moved
    bool permissionDenied = false;       // the system refused it for lack of permission (Finder may ask for more)
    bool wrongObject = false;            // another object had taken its place; that one was put back

    [[nodiscard]] bool moved() const { return pathInTrash.has_value(); }
};

// Moves one object to the Trash. The remover's seam: the default is SystemTrash::move; tests put
// a wrapper around it to observe or race the move. Must never delete or copy anything.
using TrashOperation = std::function<TrashResult(const TrashRequest& request)>;
