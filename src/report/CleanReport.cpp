#include "report/CleanReport.h"

#include "format/ByteCount.h"
#include "format/WholeNumber.h"
#include "report/ScanReport.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QTextStream>

#include <algorithm>

namespace {

// The last lines of the table: what was or would be freed, what failed, what stayed.
QString freedLine(bool dryRun, int removed, const QString& freedText)
{
    if (dryRun && removed == 1)
        //: Last line of clean --dry-run; %1 is a size such as "1.2 GB"
        return QCoreApplication::translate("CleanReport", "Would free %1 from 1 item.").arg(freedText);
    if (dryRun)
        //: Last line of clean --dry-run; %1 is a size such as "1.2 GB", %2 the number of items
        return QCoreApplication::translate("CleanReport", "Would free %1 from %2 items.").arg(freedText, WholeNumber::format(removed));
    if (removed == 1)
        //: Last line of clean --yes; %1 is a size such as "1.2 GB"
        return QCoreApplication::translate("CleanReport", "Freed %1 from 1 item.").arg(freedText);
    //: Last line of clean --yes; %1 is a size such as "1.2 GB", %2 the number of items
    return QCoreApplication::translate("CleanReport", "Freed %1 from %2 items.").arg(freedText, WholeNumber::format(removed));
}

QString failedLine(int failed)
{
    if (failed == 1)
        //: Last lines of clean --yes, when one item failed (its reason is above)
        return QCoreApplication::translate("CleanReport", "1 item couldn't be removed.");
    //: Last lines of clean --yes; %1 is the number of items that failed (their reasons are above)
    return QCoreApplication::translate("CleanReport", "%1 items couldn't be removed.").arg(WholeNumber::format(failed));
}

QString skippedLine(int skipped)
{
    if (skipped == 1)
        //: Last lines of clean, when one item stays (its reason is above)
        return QCoreApplication::translate("CleanReport", "1 item was left where it is.");
    //: Last lines of clean; %1 is the number of items that stay (their reasons are above)
    return QCoreApplication::translate("CleanReport", "%1 items were left where they are.").arg(WholeNumber::format(skipped));
}

}  // namespace

CleanReport CleanReport::dryRunOf(const CleanPlan& plan)
{
    CleanReport report;
    for (const CleanPlan::Entry& entry : plan.entries)
        report.rows.append({entry.item, entry.leftOut ? Outcome::skipped : Outcome::wouldMove, entry.leftOut.value_or(QString())});
    return report;
}

CleanReport CleanReport::runOf(const CleanPlan& plan)
{
    CleanReport report;
    report.dryRun = false;
    for (const CleanPlan::Entry& entry : plan.entries)
        report.rows.append({entry.item, Outcome::skipped, entry.leftOut.value_or(notReachedReason())});
    return report;
}

void CleanReport::record(const CleanupItem& item, const RemovalOutcome& outcome)
{
    for (Row& row : rows) {
        if (row.item.id != item.id)
            continue;
        row.outcome = outcome.kind == RemovalOutcome::Kind::movedToTrash    ? Outcome::moved
                    : outcome.kind == RemovalOutcome::Kind::removedByTool ? Outcome::removedByTool
                                                                          : Outcome::failed;
        row.reason = outcome.reason;
        return;
    }
}

qint64 CleanReport::freed() const
{
    qint64 bytes = 0;
    for (const Row& row : rows) {
        if (row.outcome == Outcome::wouldMove || row.outcome == Outcome::moved || row.outcome == Outcome::removedByTool)
            bytes += row.item.size;
    }
    return bytes;
}

int CleanReport::count(Outcome outcome) const
{
    return static_cast<int>(std::count_if(rows.begin(), rows.end(), [outcome](const Row& row) { return row.outcome == outcome; }));
}

QString CleanReport::rawOutcome(Outcome outcome)
{
    switch (outcome) {
    case Outcome::wouldMove: return QStringLiteral("wouldMove");
    case Outcome::moved: return QStringLiteral("moved");
    case Outcome::removedByTool: return QStringLiteral("removedByTool");
    case Outcome::failed: return QStringLiteral("failed");
    case Outcome::skipped: break;
    }
    return QStringLiteral("skipped");
}

QString CleanReport::notReachedReason()
{
    //: Why clean did not remove a row: the person stopped it (Ctrl-C) before it got there
    return QCoreApplication::translate("CleanReport", "The cleanup was stopped before it got to this item.");
}

QJsonObject CleanReport::toJson() const
{
    QJsonArray items;
    for (const Row& row : rows) {
        items.append(QJsonObject{{QStringLiteral("id"), row.item.id},
                                 {QStringLiteral("category"), Categories::rawValue(row.item.category)},
                                 {QStringLiteral("title"), row.item.title},
                                 {QStringLiteral("paths"), QJsonArray::fromStringList(row.item.removal.paths())},
                                 {QStringLiteral("size"), static_cast<double>(row.item.size)},
                                 {QStringLiteral("outcome"), rawOutcome(row.outcome)},
                                 {QStringLiteral("reason"), row.reason.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(row.reason)}});
    }
    return {{QStringLiteral("version"), 1},
            {QStringLiteral("dryRun"), dryRun},
            {QStringLiteral("items"), items},
            {QStringLiteral("freed"), static_cast<double>(freed())},
            {QStringLiteral("failed"), count(Outcome::failed)}};
}

QByteArray CleanReport::toText() const
{
    QByteArray out;
    QTextStream stream(&out);
    for (const Row& row : rows) {
        stream << ByteCount::format(row.item.size).rightJustified(10) << "  " << rawOutcome(row.outcome).leftJustified(13)
               << ' ' << Categories::rawValue(row.item.category).leftJustified(13) << ' ' << ScanReport::titleWithBadge(row.item) << '\n';
        if (!row.reason.isEmpty())
            stream << QString(40, QLatin1Char(' ')) << row.reason << '\n';
    }
    const int removed = count(dryRun ? Outcome::wouldMove : Outcome::moved) + count(Outcome::removedByTool);
    stream << freedLine(dryRun, removed, ByteCount::format(freed())) << '\n';
    if (const int failed = count(Outcome::failed))
        stream << failedLine(failed) << '\n';
    if (const int skipped = count(Outcome::skipped))
        stream << skippedLine(skipped) << '\n';
    stream.flush();
    return out;
}
