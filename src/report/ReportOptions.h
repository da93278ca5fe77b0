#pragma once

#include "report/CleanOptions.h"
#include "vocabulary/CategoryID.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The report tool's command line: scan [--home DIR] [--root DIR]... [--category RAW]... [--json] [--notify],
// storage [--home DIR] [--json], either with --record; history [--since DATE|last] [--json];
// or clean with the scan's options and its own (CleanOptions).
struct ReportOptions {
    enum class Command { scan, storage, history, clean };

    Command command = Command::scan;
    std::optional<QString> home;
    QStringList roots;
    QList<CategoryID> categories;  // empty: every category (clean needs at least one)
    bool json = false;
    bool record = false;           // scan, storage: add the result to the scan history
    std::optional<QString> since;  // history: "last" or a date; absent lists the kept scans
    bool notify = false;           // scan: tell the person what was found, and when the disk runs low
    CleanOptions clean;

    // Parses the arguments after the program name. On failure returns absent and sets
    // `error` to a one-line message. A --home or --root must be a folder that can be read.
    static std::optional<ReportOptions> parse(const QStringList& arguments, QString* error);
    static QString usage();
    // Whether the arguments ask for the help page (help, --help or -h anywhere).
    static bool asksForHelp(const QStringList& arguments);
};
