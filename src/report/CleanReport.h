#pragma once

#include "actions/RemovalOutcome.h"
#include "report/CleanPlan.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>

// What one `clean` did or would do, row by row, and how the report tool prints it: one JSON
// object {"version":1,"dryRun","items":[{"id","category","title","paths","size","outcome",
// "reason"}],"freed","failed"}, or a table with the same rows and a few summary sentences.
struct CleanReport {
    enum class Outcome { wouldMove, moved, removedByTool, failed, skipped };

    struct Row {
        CleanupItem item;
        Outcome outcome = Outcome::skipped;
        QString reason;  // empty unless failed or skipped
    };

    bool dryRun = true;
    bool stopped = false;
    QList<Row> rows;

    // Every entry of the plan as it would go (or stay, when left out).
    [[nodiscard]] static CleanReport dryRunOf(const CleanPlan& plan);
    // The plan's entries before any was removed: those to remove are marked as not reached until
    // `record` gives their outcome.
    [[nodiscard]] static CleanReport runOf(const CleanPlan& plan);
    void record(const CleanupItem& item, const RemovalOutcome& outcome);

    [[nodiscard]] qint64 freed() const;
    [[nodiscard]] int count(Outcome outcome) const;
    [[nodiscard]] static QString rawOutcome(Outcome outcome);
    // Why a row of a stopped run was not removed.
    [[nodiscard]] static QString notReachedReason();

    [[nodiscard]] QJsonObject toJson() const;
    [[nodiscard]] QByteArray toText() const;
};
