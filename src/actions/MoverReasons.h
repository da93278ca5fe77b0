#pragma once

#include <QString>
#include <QStringList>

// The sentences a move ends with, in one place so the checks and every step word them alike.
// Thread-safe (translation lookups only).
namespace Mover::Reasons {

[[nodiscard]] QString destinationUnavailable();
[[nodiscard]] QString destinationNotWritable();
[[nodiscard]] QString sameDisk();
[[nodiscard]] QString insideItself();
[[nodiscard]] QString sameNameTwice(const QString& name);
[[nodiscard]] QString nameTaken(const QString& name);
[[nodiscard]] QString onlyFilesAndFolders();
[[nodiscard]] QString unreadable();
[[nodiscard]] QString notEnoughSpace(qint64 needed, qint64 free);
[[nodiscard]] QString leftoverWorkFolder();
[[nodiscard]] QString copyFailed(const QString& toolMessage);
[[nodiscard]] QString originalChanged();
[[nodiscard]] QString copyMismatch(qint64 copyFiles, qint64 originalFiles);
[[nodiscard]] QString copyReadBackWrong();
[[nodiscard]] QString trashFailed(const QString& reason);
[[nodiscard]] QString changedAfterCheck(const QString& copy, const QStringList& placesInTrash);
[[nodiscard]] QString stopped();
[[nodiscard]] QString partsLeft(const QString& reason, const QStringList& paths);

}  // namespace Mover::Reasons
