#pragma once

#include "report/CleanOptions.h"
#include "report/ScanReport.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

#include <optional>

// What `clean` removes, decided once from one scan, so a dry run lists exactly what a real run
// then removes. The rows of the scanned categories that pass the filters are ticked through the
// model's own selection rules (locked rows and the Trash row never, one copy of every duplicate
// group, the oldest, always stays), then reduced like a cleanup is prepared (an item another
// one removes with it is left out). Rows that a tool removes for good stay without --permanent.
struct CleanPlan {
    struct Entry {
        CleanupItem item;
        std::optional<QString> leftOut;  // why it stays although it was selected
    };

    QList<Entry> entries;       // in the order a cleanup removes them
    QList<CleanupItem> copies;  // the duplicates list, for the run's last-copy rule
    QStringList unknownIds;     // --id values that name no row of the scanned categories

    // `now` is the moment ages are measured from (the scan's start).
    [[nodiscard]] static CleanPlan make(ScanReport::Results results, const CleanOptions& options, const QString& home,
                                        const QDateTime& now);
    // The entries that are removed, in order.
    [[nodiscard]] QList<CleanupItem> toRemove() const;
    [[nodiscard]] int leftOutCount() const;
    // Why a row Docker or Xcode removes for good was left out.
    [[nodiscard]] static QString permanentLeftOutReason();
};
