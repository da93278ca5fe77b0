#pragma once

#include "vocabulary/Safety.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// What `dustlark-cli clean` removes and how: the filters a row must pass and the mode.
struct CleanOptions {
    enum class Taken { no, yes, failed };

    QStringList ids;                  // empty: any id
    std::optional<qint64> olderThanDays;
    std::optional<qint64> minSize;    // bytes
    QList<Safety> safeties;           // empty: any label
    bool dryRun = false;
    bool yes = false;
    bool permanent = false;
    bool wait = false;                // wait for another cleanup instead of refusing

    // Takes the option at `arguments[*index]`, and its value (advancing `*index`), when it is
    // one of clean's; `failed` sets `error` to a one-line message.
    Taken take(const QStringList& arguments, int* index, QString* error);
    // After every argument was taken: exactly one of --dry-run and --yes.
    [[nodiscard]] bool isComplete(QString* error) const;
};
