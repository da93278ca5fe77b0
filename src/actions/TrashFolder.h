#pragma once

#include "machinery/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <sys/types.h>

struct ExistingTrash;

// One freedesktop.org trash, opened: the trash folder and its "files" and "info" folders held as
// descriptors, so a move into it or its emptying never resolves a path again. "files" and
// "info" are real folders of the person's on the trash folder's own volume, never links. Either the home trash or a volume's own trash at the
// volume's top folder ($topdir/.Trash/$uid when that is a real sticky folder, else
// $topdir/.Trash-$uid). Movable value; one owner.
struct TrashFolder {
    Descriptor folder;
    Descriptor files;
    Descriptor info;
    QString filesPath;     // for reporting where an object went
    QByteArray topFolder;  // the volume's top folder; empty for the home trash
    dev_t device = 0;

    // The home trash ($XDG_DATA_HOME/Trash), made owner-only where missing. Absent when it
    // can't be made or opened.
    [[nodiscard]] static std::optional<TrashFolder> home();

    // The home trash as it is, for emptying: every folder from the home folder down (from "/"
    // for a trash outside the home) opened without following a link, nothing made. A part that
    // is missing is held invalid. `refusal` is the sentence when it may not be emptied: a
    // folder on the way or "files" or "info" is a link, or one of those two lies on another
    // volume than the trash folder.
    [[nodiscard]] static ExistingTrash existingHome();

    // The trash at the top folder of the volume that holds the open folder `folder`, whose
    // path is the folder part of `originalPath`. Absent when none can be made safely.
    [[nodiscard]] static std::optional<TrashFolder> ofVolume(int folder, const QString& originalPath);
};

// The home trash found for emptying, or why it may not be emptied.
struct ExistingTrash {
    std::optional<TrashFolder> trash;  // absent when there is no home trash at all
    std::optional<QString> refusal;
};
