#pragma once

#include "support/TempTree.h"

#include <QFile>
#include <QStringList>

#include <sys/stat.h>

// Why a test of unreadable folders could not run: root reads every folder whatever its mode.
inline constexpr const char* cannotLockFolders =
    "running as root, and a child as 'nobody' could not be started to honour folder modes";

// Runs `work` where permissions bind (TempTree::runUnprivileged) with `folders` (absolute
// paths) closed to everyone, and opens them again afterwards so the tree can be removed.
inline std::optional<QByteArray> withFoldersLocked(const TempTree& tree, const QStringList& folders,
                                                   const std::function<QByteArray()>& work)
{
    for (const QString& folder : folders)
        ::chmod(QFile::encodeName(folder).constData(), 0);
    const std::optional<QByteArray> result = tree.runUnprivileged(work);
    for (const QString& folder : folders)
        ::chmod(QFile::encodeName(folder).constData(), 0755);
    return result;
}
