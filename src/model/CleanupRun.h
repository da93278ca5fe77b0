#pragma once

#include "actions/RemovalEnvironment.h"
#include "actions/RemovalOutcome.h"
#include "vocabulary/CleanupItem.h"

#include <QList>

#include <functional>

// The removal loop of one cleanup, the same for the app's worker thread and the report tool:
// the items one at a time in their order, a stop honoured between items (the current item
// finishes), and a duplicate copy kept when no other copy would stay on disk as the scan saw it.
// Runs on the calling thread and calls the steps there; never waits for another thread.
namespace CleanupRun {

using RemoveItem = std::function<RemovalOutcome(const CleanupItem&, const RemovalEnvironment&)>;

struct Steps {
    std::function<bool()> stopRequested;
    std::function<void(const CleanupItem&)> starting;
    std::function<void(const CleanupItem&, const RemovalOutcome&)> finished;
};

// Removes `items` through `removeItem`; `copies` are the rows of the duplicates list, which the
// run keeps account of as copies go. True when it ended early because a stop was requested.
bool run(const QList<CleanupItem>& items, QList<CleanupItem> copies, const RemovalEnvironment& environment,
         const RemoveItem& removeItem, const Steps& steps);

}  // namespace CleanupRun
