#pragma once

#include "support/ProgramRun.h"

#include <QJsonArray>
#include <QJsonObject>

// A run of dustlark-cli's JSON scan report, read back the way tests compare it: categories by
// id, rows by title.
struct CliScan {
    // `dustlark-cli scan --home HOME [--category ID]... --json`, after `wrapper` (a command and
    // its arguments) when one is given.
    static CliScan run(const QString& home, const QStringList& categoryIds = {},
                       const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                       const QStringList& wrapper = {});
    static CliScan of(const ProgramRun& run);

    QJsonObject category(const QString& id) const;  // empty when the report has none
    QJsonArray items(const QString& categoryId) const { return category(categoryId)[QStringLiteral("items")].toArray(); }
    QJsonObject item(const QString& title) const;  // the first row so titled in any category, else empty
    QString categoryOf(const QString& title) const;

    ProgramRun program;
    QJsonArray categories;
};
