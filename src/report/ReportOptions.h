#pragma once

#include "vocabulary/CategoryID.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The report tool's command line: scan [--home DIR] [--root DIR]... [--category RAW]... [--json],
// storage [--home DIR] [--json], either with --record, or history [--since DATE|last] [--json].
struct ReportOptions {
    enum class Command { scan, storage, history };

    Command command = Command::scan;
    std::optional<QString> home;
    QStringList roots;
    QList<CategoryID> categories;  // empty: every category
    bool json = false;
    bool record = false;           // scan, storage: add the result to the scan history
    std::optional<QString> since;  // history: "last" or a date; absent lists the kept scans

    // Parses the arguments after the program name. On failure returns absent and sets
    // `error` to a one-line message.
    static std::optional<ReportOptions> parse(const QStringList& arguments, QString* error);
    static QString usage();
};
