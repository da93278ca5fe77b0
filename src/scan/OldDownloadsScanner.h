#pragma once

#include "platform/Platform.h"
#include "scan/Scanner.h"

#include <QString>

#include <optional>

// Fills the old-downloads category: entries of "~/Downloads" in which nothing changed for 90
// days. Installers and large files are left to their own categories. A value type; scan()
// holds no state and may run on any thread.
class OldDownloadsScanner : public Scanner {
public:
    QList<CategoryID> categories() const override { return {CategoryID::oldDownloads}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The row of one entry of Downloads, when it is old and no other category lists it.
    [[nodiscard]] static std::optional<CleanupItem> row(const QString& path, const ScanContext& context);

    [[nodiscard]] static QString unreadableNote(Platform::Desktop desktop = Platform::desktop());
};
