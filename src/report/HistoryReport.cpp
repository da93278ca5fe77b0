#include "report/HistoryReport.h"

#include "format/ByteCount.h"
#include "history/HistoryGrowth.h"
#include "history/HistoryStore.h"
#include "model/HistoryDigest.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include <cstdio>

namespace HistoryReport {

namespace {

using Kind = HistoryRecord::Kind;

double number(qint64 value)
{
    return static_cast<double>(value);
}

QString isoDate(const QDateTime& date)
{
    return date.toUTC().toString(Qt::ISODate);
}

QString localDate(const QDateTime& date)
{
    return date.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

QJsonValue optionalNumber(const std::optional<qint64>& value)
{
    return value ? QJsonValue(number(*value)) : QJsonValue();
}

QJsonObject recordToJson(const HistoryRecord& record)
{
    QJsonObject object{{QStringLiteral("id"), number(record.id)},
                       {QStringLiteral("kind"), HistoryRecord::rawKind(record.kind)},
                       {QStringLiteral("date"), isoDate(record.date)},
                       {QStringLiteral("diskUsed"), optionalNumber(record.diskUsed)},
                       {QStringLiteral("diskFree"), optionalNumber(record.diskFree)}};
    if (record.kind == Kind::scan) {
        QJsonObject categories;
        for (auto it = record.categories.begin(); it != record.categories.end(); ++it)
            categories.insert(it.key(), QJsonObject{{QStringLiteral("bytes"), number(it->bytes)}, {QStringLiteral("items"), number(it->count)}});
        object.insert(QStringLiteral("found"), number(record.found()));
        object.insert(QStringLiteral("categories"), categories);
    } else {
        QJsonObject buckets;
        for (auto it = record.buckets.begin(); it != record.buckets.end(); ++it)
            buckets.insert(it.key(), number(it->bytes));
        object.insert(QStringLiteral("measured"), number(record.measured()));
        object.insert(QStringLiteral("buckets"), buckets);
    }
    return object;
}

QJsonArray changesToJson(const QList<HistoryGrowth::Change>& changes, const QString& nameKey, bool withPath)
{
    QJsonArray array;
    for (const HistoryGrowth::Change& change : changes) {
        QJsonObject object{{nameKey, change.name},
                           {QStringLiteral("before"), number(change.before)},
                           {QStringLiteral("after"), number(change.after)},
                           {QStringLiteral("growth"), number(change.growth())}};
        if (withPath)
            object.insert(QStringLiteral("path"), change.path);
        array.append(object);
    }
    return array;
}

void writeChanges(QTextStream& out, const QString& heading, const QList<HistoryGrowth::Change>& changes,
                  const std::function<QString(const HistoryGrowth::Change&)>& label)
{
    if (changes.isEmpty())
        return;
    out << heading << '\n';
    for (const HistoryGrowth::Change& change : changes)
        out << "  " << ByteCount::formatChange(change.growth()).rightJustified(10) << "  " << label(change) << '\n';
}

void print(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

}  // namespace

bool parseSince(const QString& text, std::optional<QDateTime>* since, QString* error)
{
    if (text == QLatin1String("last")) {
        since->reset();
        return true;
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (text.contains(QLatin1Char('T')) && moment.isValid()) {
        *since = moment;
        return true;
    }
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (day.isValid()) {
        *since = day.startOfDay();
        return true;
    }
    //: Error of the report tool; %1 is what followed --since
    *error = QCoreApplication::translate("HistoryReport", "\"%1\" is neither \"last\" nor a date such as 2026-11-01.").arg(text);
    return false;
}

QJsonObject listToJson(const QList<HistoryRecord>& newestFirst)
{
    QJsonArray scans;
    for (const HistoryRecord& record : newestFirst)
        scans.append(recordToJson(record));
    return {{QStringLiteral("scans"), scans}};
}

QByteArray listToText(const QList<HistoryRecord>& newestFirst)
{
    QByteArray bytes;
    QTextStream out(&bytes);
    if (newestFirst.isEmpty())
        //: The report tool's history when nothing was recorded yet
        out << QCoreApplication::translate("HistoryReport", "No scans are kept yet.") << '\n';
    for (const HistoryRecord& record : newestFirst) {
        const QString used = record.diskUsed ? ByteCount::format(*record.diskUsed) : QStringLiteral("-");
        if (record.kind == Kind::scan)
            //: A line of the report tool's history; %1 date, %2 bytes found to review, %3 disk used
            out << QCoreApplication::translate("HistoryReport", "%1  scan     found %2, disk used %3").arg(localDate(record.date), ByteCount::format(record.found()), used);
        else
            //: A line of the report tool's history; %1 date, %2 bytes measured, %3 disk used
            out << QCoreApplication::translate("HistoryReport", "%1  storage  measured %2, disk used %3").arg(localDate(record.date), ByteCount::format(record.measured()), used);
        out << '\n';
    }
    out.flush();
    return bytes;
}

QJsonObject growthToJson(const QList<HistoryRecord>& newestFirst, const std::optional<QDateTime>& since)
{
    QJsonArray scans;
    QJsonArray categories;
    QJsonArray buckets;
    QJsonArray folders;
    if (const auto scan = HistoryGrowth::pair(newestFirst, Kind::scan, since)) {
        scans.append(recordToJson(scan->before));
        scans.append(recordToJson(scan->after));
        categories = changesToJson(HistoryGrowth::totals(scan->before.categories, scan->after.categories), QStringLiteral("category"), false);
    }
    if (const auto storage = HistoryGrowth::pair(newestFirst, Kind::storage, since)) {
        scans.append(recordToJson(storage->before));
        scans.append(recordToJson(storage->after));
        buckets = changesToJson(HistoryGrowth::totals(storage->before.buckets, storage->after.buckets), QStringLiteral("bucket"), false);
        folders = changesToJson(HistoryGrowth::folders(storage->before.folders, storage->after.folders), QStringLiteral("bucket"), true);
    }
    return {{QStringLiteral("scans"), scans},
            {QStringLiteral("categories"), categories},
            {QStringLiteral("buckets"), buckets},
            {QStringLiteral("folders"), folders}};
}

QByteArray growthToText(const QList<HistoryRecord>& newestFirst, const std::optional<QDateTime>& since)
{
    QByteArray bytes;
    QTextStream out(&bytes);
    const auto scan = HistoryGrowth::pair(newestFirst, Kind::scan, since);
    const auto storage = HistoryGrowth::pair(newestFirst, Kind::storage, since);
    if (!scan && !storage)
        //: The report tool's history comparison with fewer than two kept scans
        out << QCoreApplication::translate("HistoryReport", "Fewer than two scans are kept, so there is nothing to compare yet.") << '\n';
    if (scan) {
        //: Heading of the report tool's comparison; %1 and %2 are the two scans' dates, %3 the change of the disk's used space
        out << QCoreApplication::translate("HistoryReport", "Scans of %1 and %2: %3").arg(localDate(scan->before.date), localDate(scan->after.date), ByteCount::formatChange(HistoryGrowth::headline(*scan))) << '\n';
        //: Heading of the categories in the report tool's comparison
        writeChanges(out, QCoreApplication::translate("HistoryReport", "Categories:"), HistoryGrowth::totals(scan->before.categories, scan->after.categories),
                     [](const HistoryGrowth::Change& change) { return HistoryDigest::categoryTitle(change.name); });
    }
    if (storage) {
        //: Heading of the report tool's comparison of two storage analyses; %1 and %2 are their dates
        out << QCoreApplication::translate("HistoryReport", "Storage analyses of %1 and %2:").arg(localDate(storage->before.date), localDate(storage->after.date)) << '\n';
        //: Heading of the storage kinds in the report tool's comparison
        writeChanges(out, QCoreApplication::translate("HistoryReport", "Kinds:"), HistoryGrowth::totals(storage->before.buckets, storage->after.buckets),
                     [](const HistoryGrowth::Change& change) { return HistoryDigest::bucketTitle(change.name); });
        //: Heading of the folders in the report tool's comparison
        writeChanges(out, QCoreApplication::translate("HistoryReport", "Folders:"), HistoryGrowth::folders(storage->before.folders, storage->after.folders),
                     [](const HistoryGrowth::Change& change) { return change.path; });
    }
    out.flush();
    return bytes;
}

int run(const ReportOptions& options, const QString& path)
{
    std::optional<QDateTime> since;
    QString error;
    if (options.since && !parseSince(*options.since, &since, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    QList<HistoryRecord> records;
    // Listing never creates the file.
    if (QFileInfo::exists(path)) {
        HistoryStore store(path);
        for (const QString& note : store.notes())
            std::fprintf(stderr, "%s\n", qPrintable(note));
        records = store.records();
        if (const auto storage = HistoryGrowth::pair(records, Kind::storage, since); storage && options.since) {
            for (HistoryRecord& record : records) {
                if (record.id == storage->before.id || record.id == storage->after.id)
                    record.folders = store.folders(record.id);
            }
        }
    }
    if (!options.since)
        print(options.json ? QJsonDocument(listToJson(records)).toJson(QJsonDocument::Indented) : listToText(records));
    else
        print(options.json ? QJsonDocument(growthToJson(records, since)).toJson(QJsonDocument::Indented) : growthToText(records, since));
    return 0;
}

void record(const HistoryRecord& record, const QString& path)
{
    HistoryStore store(path);
    const auto problem = store.record(record);
    for (const QString& note : store.notes())
        std::fprintf(stderr, "%s\n", qPrintable(note));
    if (problem)
        std::fprintf(stderr, "%s\n", qPrintable(*problem));
}

}  // namespace HistoryReport
