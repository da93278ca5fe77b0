#pragma once

#include "machinery/Descriptor.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <sys/types.h>

// One freedesktop.org trash, opened: its "files" and "info" folders held as descriptors, so a
// move into it never resolves a path again. Either the home trash or a volume's own trash at the
// volume's top folder ($topdir/.Trash/$uid when that is a real sticky folder, else
// $topdir/.Trash-$uid). Movable value; one owner.
struct TrashFolder {
    Descriptor files;
    Descriptor info;
    QString filesPath;     // for reporting where an object went
    QByteArray topFolder;  // the volume's top folder; empty for the home trash
    dev_t device = 0;

    // The home trash ($XDG_DATA_HOME/Trash), made owner-only where missing. Absent when it
    // can't be made or opened.
    [[nodiscard]] static std::optional<TrashFolder> home();

    // The trash at the top folder of the volume that holds the open folder `folder`, whose
    // path is the folder part of `originalPath`. Absent when none can be made safely.
    [[nodiscard]] static std::optional<TrashFolder> ofVolume(int folder, const QString& originalPath);
};
