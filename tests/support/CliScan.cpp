#include "support/CliScan.h"

#include <QJsonDocument>

CliScan CliScan::run(const QString& home, const QStringList& categoryIds, const QProcessEnvironment& environment,
                     const QStringList& wrapper)
{
    QStringList command = wrapper;
    command << QStringLiteral(DUSTLARK_CLI) << QStringLiteral("scan") << QStringLiteral("--home") << home;
    for (const QString& id : categoryIds)
        command << QStringLiteral("--category") << id;
    command << QStringLiteral("--json");
    const QString program = command.takeFirst();
    return of(ProgramRun::run(program, command, 120'000, environment));
}

CliScan CliScan::of(const ProgramRun& run)
{
    return {run, QJsonDocument::fromJson(run.standardOutput)[QStringLiteral("categories")].toArray()};
}

QJsonObject CliScan::category(const QString& id) const
{
    for (const QJsonValue& each : categories) {
        if (each[QStringLiteral("id")].toString() == id)
            return each.toObject();
    }
    return {};
}

QJsonObject CliScan::item(const QString& title) const
{
    const QString id = categoryOf(title);
    for (const QJsonValue& each : items(id)) {
        if (each[QStringLiteral("title")].toString() == title)
            return each.toObject();
    }
    return {};
}

QString CliScan::categoryOf(const QString& title) const
{
    for (const QJsonValue& each : categories) {
        for (const QJsonValue& row : each[QStringLiteral("items")].toArray()) {
            if (row[QStringLiteral("title")].toString() == title)
                return each[QStringLiteral("id")].toString();
        }
    }
    return {};
}
