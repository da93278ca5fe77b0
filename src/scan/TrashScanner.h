#pragma once

#include "scan/Scanner.h"

#include <QString>

// Fills the trash category with its one row: the Trash, measured, emptied as a whole. Without
// Full Disk Access macOS keeps the Trash from being read, so the row says its size is unknown.
// A value type; scan() holds no state and may run on any thread.
class TrashScanner : public Scanner {
public:
    QList<CategoryID> categories() const override { return {CategoryID::trash}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The row's id; the Trash is one place, whatever is in it.
    static inline const QString rowId = QStringLiteral("trash");

    [[nodiscard]] static QString fullDiskAccessNote();
    [[nodiscard]] static QString unreadableNote();
};
