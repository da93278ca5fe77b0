#pragma once

#include "machinery/CancellationToken.h"
#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QString>

#include <optional>

// The biggest entries directly inside a folder row, for the AI question: they tell an assistant
// far more about an unknown folder than its name does. Plain value; reading it walks the whole
// folder, so read() and of() run on a worker thread, never the GUI thread.
struct LargestContents {
    struct Entry {
        QString name;
        qint64 bytes = 0;
        bool operator==(const Entry&) const = default;
    };

    static constexpr int defaultLimit = 10;

    QList<Entry> entries;   // largest first (ties by name), at most the limit
    qint64 moreEntries = 0; // entries left out beyond the limit

    // The folder's entries, each measured on disk. Empty when the folder can't be read; what
    // was measured so far when `cancellation` fires.
    [[nodiscard]] static LargestContents read(const QString& folder, int limit = defaultLimit,
                                              const CancellationToken* cancellation = nullptr);
    // The listing for a row of exactly one folder (not a symbolic link); absent for any other row.
    [[nodiscard]] static std::optional<LargestContents> of(const CleanupItem& item, int limit = defaultLimit,
                                                           const CancellationToken* cancellation = nullptr);

    bool operator==(const LargestContents&) const = default;
};
