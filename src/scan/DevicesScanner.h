#pragma once

#include "scan/Scanner.h"

#include <QString>

#include <optional>

// Fills the devices category: downloaded iPhone and iPad updates (the devices rows of the known
// locations) and the device backups Finder keeps in "MobileSync/Backup". A value type; scan()
// holds no state and may run on any thread.
class DevicesScanner : public Scanner {
public:
    QList<CategoryID> categories() const override { return {CategoryID::devices}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The row of one backup folder; absent when it vanished or the scan was stopped.
    [[nodiscard]] static std::optional<CleanupItem> backupRow(const QString& folder, const ScanContext& context);

    [[nodiscard]] static QString backupsFolder(const QString& home);
    [[nodiscard]] static QString fullDiskAccessNote();
};
