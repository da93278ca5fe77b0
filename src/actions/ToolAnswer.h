#pragma once

#include "machinery/CancellationToken.h"

#include <QString>
#include <QStringList>

#include <chrono>

// One run of a removal tool (docker, xcrun) reduced to what the removal needs: the standard
// output when the tool succeeded, otherwise the sentence to show.
struct ToolAnswer {
    bool succeeded = false;
    QString output;   // standard output of a successful run
    QString failure;  // the reason sentence of a failed run

    // Runs the tool through ProcessRunner and blocks the worker thread until it ends. A run
    // that can't start, exits non-zero or times out is a failure.
    [[nodiscard]] static ToolAnswer ask(const QString& executable, const QStringList& arguments,
                                        std::chrono::seconds timeLimit,
                                        const CancellationToken* cancellation = nullptr);
};
