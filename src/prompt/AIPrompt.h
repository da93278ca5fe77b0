#pragma once

#include "prompt/LargestContents.h"
#include "prompt/PromptContext.h"
#include "vocabulary/CategoryID.h"
#include "vocabulary/CleanupItem.h"

#include <QList>
#include <QString>

#include <optional>

// The question a person pastes into an AI assistant to ask whether rows are safe to remove.
// It only formats: make() and makeBatch() are pure given their inputs and safe on any thread.
// What needs the file system (the folder listing, the machine line) is gathered beforehand,
// on a worker thread; compose() and composeBatch() do both steps for such a worker.
namespace AIPrompt {

inline constexpr int batchLimit = 150;

// The question about one row; `contents` lists a folder row's largest entries.
[[nodiscard]] QString make(const CleanupItem& item, const PromptContext& context,
                           const std::optional<LargestContents>& contents = std::nullopt);

// The question about rows of one category; lists at most batchLimit of them.
[[nodiscard]] QString makeBatch(const QList<CleanupItem>& items, CategoryID category,
                                const PromptContext& context);

// How the row would go, as the phrase after "How Dustlark would remove it: ".
[[nodiscard]] QString removalDescription(const Removal& removal);

// Gathers the context (and the folder listing) and writes the question. Reads the disk:
// call on a worker thread and hand the text back with a queued call.
[[nodiscard]] QString compose(const CleanupItem& item, const CancellationToken* cancellation = nullptr);
[[nodiscard]] QString composeBatch(const QList<CleanupItem>& items, CategoryID category);

}  // namespace AIPrompt
