#pragma once

#include "vocabulary/CategoryID.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The report tool's command line: scan [--home DIR] [--root DIR]... [--category RAW]... [--json] [--notify],
// or storage [--home DIR] [--json].
struct ReportOptions {
    enum class Command { scan, storage };

    Command command = Command::scan;
    std::optional<QString> home;
    QStringList roots;
    QList<CategoryID> categories;  // empty: every category
    bool json = false;
    bool notify = false;  // scan: tell the person what was found, and when the disk runs low

    // Parses the arguments after the program name. On failure returns absent and sets
    // `error` to a one-line message.
    static std::optional<ReportOptions> parse(const QStringList& arguments, QString* error);
    static QString usage();
};
