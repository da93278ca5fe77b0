#pragma once

#include "actions/TrashOperation.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

// The system's own move to the Trash: the file manager's trash call on macOS (NSFileManager,
// through QFile::moveToTrash), our own freedesktop.org trash through descriptors on Linux.
// Thread-safe; keeps no state.
namespace SystemTrash {

// Moves the request's object to the Trash and reports where it went; an object other than the
// requested one is put back and reported as `wrongObject`. Never deletes, never copies.
[[nodiscard]] TrashResult move(const TrashRequest& request);

// What the file manager's trash call answered: where the object landed, or why it did not move.
struct FileManagerAnswer {
    std::optional<QString> landed;
    QString error;  // QFile's error text of the failed move
};

// The calls the macOS move is made of, so it can run here with a Trash folder that refuses to
// be opened. The defaults are the real ones.
struct FileManagerCalls {
    std::function<FileManagerAnswer(const QString& path)> trash = trashThroughQt;
    // An open descriptor of the folder `path` names (links followed), or -1.
    std::function<int(const QByteArray& path)> openFolder = openFolderFollowingLinks;

    static FileManagerAnswer trashThroughQt(const QString& path);
    static int openFolderFollowingLinks(const QByteArray& path);
};

// The macOS move: `move` on macOS, callable anywhere.
[[nodiscard]] TrashResult moveThroughFileManager(const TrashRequest& request, const FileManagerCalls& calls = {});

// Whether the file manager refused the move for lack of permission, read from the move's own
// error, so the caller may offer Finder's move, which asks for an administrator.
[[nodiscard]] bool refusedForPermission(const QString& error);

}  // namespace SystemTrash
