#pragma once

#include "model/FileTarget.h"

#include <QString>

// Finds files with exact copies among the walk's candidates.
namespace DuplicateFinder {

// One candidate file, as the walk found it.
struct File {
    QString path;
    qint64 size = 0;       // logical length: the grouping key
    qint64 allocated = 0;  // bytes on disk: the row's size
    qint32 device = 0;
    quint64 inode = 0;
    FileTarget::ContentStamp stamp;  // handed to the row's target so a changed file is refused
    bool operator==(const File&) const = default;
};

}  // namespace DuplicateFinder
