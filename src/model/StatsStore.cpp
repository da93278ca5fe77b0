#include "model/StatsStore.h"

#include "vocabulary/JsonDate.h"
#include "vocabulary/JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QUuid>

#include <algorithm>

namespace {

const QString statsKey = QStringLiteral("usageStats");

QJsonObject sizesToJson(const QMap<QString, qint64>& sizes)
{
    QJsonObject object;
    for (auto it = sizes.cbegin(); it != sizes.cend(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

QMap<QString, qint64> sizesFromJson(const QJsonObject& object, JsonFields& fields)
{
    QMap<QString, qint64> sizes;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const std::optional<qint64> bytes = JsonFields::integerOf(it.value());
        if (!bytes)
            fields.fail();
        sizes.insert(it.key(), bytes.value_or(0));
    }
    return sizes;
}

QJsonObject toJson(const StatsStore::ScanSummary& scan)
{
    return {
        {QStringLiteral("date"), JsonDate::encode(scan.date)},
        {QStringLiteral("seconds"), scan.seconds},
        {QStringLiteral("found"), scan.found},
        {QStringLiteral("categorySizes"), sizesToJson(scan.categorySizes)},
    };
}

std::optional<StatsStore::ScanSummary> scanFromJson(const QJsonObject& object)
{
    JsonFields fields(object);
    StatsStore::ScanSummary scan;
    scan.date = fields.date(QStringLiteral("date"));
    scan.seconds = fields.integer(QStringLiteral("seconds"));
    scan.found = fields.integer(QStringLiteral("found"));
    scan.categorySizes = sizesFromJson(fields.object(QStringLiteral("categorySizes")), fields);
    return fields.ok() ? std::optional(scan) : std::nullopt;
}

QJsonObject toJson(const StatsStore::StorageSummary& storage)
{
    return {
        {QStringLiteral("date"), JsonDate::encode(storage.date)},
        {QStringLiteral("totals"), sizesToJson(storage.totals)},
        {QStringLiteral("notMeasured"), storage.notMeasured},
    };
}

std::optional<StatsStore::StorageSummary> storageFromJson(const QJsonObject& object)
{
    JsonFields fields(object);
    StatsStore::StorageSummary storage;
    storage.date = fields.date(QStringLiteral("date"));
    storage.totals = sizesFromJson(fields.object(QStringLiteral("totals")), fields);
    storage.notMeasured = fields.integer(QStringLiteral("notMeasured"));
    return fields.ok() ? std::optional(storage) : std::nullopt;
}

QJsonObject toJson(const StatsStore::CleanupRecord& record)
{
    return {
        {QStringLiteral("id"), record.id},
        {QStringLiteral("date"), JsonDate::encode(record.date)},
        {QStringLiteral("movedToTrash"), record.movedToTrash},
        {QStringLiteral("removedByTools"), record.removedByTools},
        {QStringLiteral("items"), record.items},
    };
}

std::optional<StatsStore::CleanupRecord> recordFromJson(const QJsonValue& value)
{
    JsonFields fields(value.toObject());
    StatsStore::CleanupRecord record;
    record.id = fields.string(QStringLiteral("id"));
    record.date = fields.date(QStringLiteral("date"));
    record.movedToTrash = fields.integer(QStringLiteral("movedToTrash"));
    record.removedByTools = fields.integer(QStringLiteral("removedByTools"));
    record.items = fields.integer(QStringLiteral("items"));
    if (!value.isObject() || QUuid::fromString(record.id).isNull())
        fields.fail();
    return fields.ok() ? std::optional(record) : std::nullopt;
}

// Decodes an optional member with `decode`; a present member that does not decode fails all.
template <typename T, typename Decode>
std::optional<T> optionalMember(JsonFields& fields, const QString& key, Decode decode)
{
    const std::optional<QJsonObject> object = fields.optionalObject(key);
    if (!object)
        return std::nullopt;
    std::optional<T> value = decode(*object);
    if (!value)
        fields.fail();
    return value;
}

}  // namespace

QList<QPair<QString, qint64>> StatsStore::StorageSummary::sortedBuckets() const
{
    QList<QPair<QString, qint64>> buckets;
    for (auto it = totals.cbegin(); it != totals.cend(); ++it)
        buckets.append({it.key(), it.value()});
    // QMap hands them over in name order, so a stable sort leaves ties by name.
    std::stable_sort(buckets.begin(), buckets.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    return buckets;
}

QJsonObject StatsStore::Stats::toJson() const
{
    QJsonArray records;
    for (const CleanupRecord& record : history)
        records.append(::toJson(record));
    QJsonObject object{
        {QStringLiteral("firstUse"), JsonDate::encode(firstUse)},
        {QStringLiteral("cleanedBytes"), cleanedBytes},
        {QStringLiteral("cleanups"), cleanups},
        {QStringLiteral("itemsRemoved"), itemsRemoved},
        {QStringLiteral("history"), records},
    };
    if (lastScan)
        object.insert(QStringLiteral("lastScan"), ::toJson(*lastScan));
    if (lastStorage)
        object.insert(QStringLiteral("lastStorage"), ::toJson(*lastStorage));
    return object;
}

std::optional<StatsStore::Stats> StatsStore::Stats::fromJson(const QJsonObject& object)
{
    JsonFields fields(object);
    Stats stats;
    stats.firstUse = fields.date(QStringLiteral("firstUse"));
    stats.cleanedBytes = fields.integer(QStringLiteral("cleanedBytes"));
    stats.cleanups = fields.integer(QStringLiteral("cleanups"));
    stats.itemsRemoved = fields.integer(QStringLiteral("itemsRemoved"));
    stats.lastScan = optionalMember<ScanSummary>(fields, QStringLiteral("lastScan"), scanFromJson);
    stats.lastStorage = optionalMember<StorageSummary>(fields, QStringLiteral("lastStorage"), storageFromJson);
    for (const QJsonValue& value : fields.array(QStringLiteral("history"))) {
        const std::optional<CleanupRecord> record = recordFromJson(value);
        if (!record)
            fields.fail();
        else
            stats.history.append(*record);
    }
    return fields.ok() ? std::optional(stats) : std::nullopt;
}

StatsStore::StatsStore(QSettings* settings, Clock clock, QObject* parent)
    : QObject(parent), m_settings(settings), m_clock(std::move(clock))
{
    if (!m_clock)
        m_clock = [] { return QDateTime::currentDateTimeUtc(); };
    load();
}

void StatsStore::load()
{
    const QVariant stored = m_settings->value(statsKey);
    const QJsonDocument document = QJsonDocument::fromJson(stored.typeId() == QMetaType::QByteArray ? stored.toByteArray() : QByteArray());
    const std::optional<Stats> decoded = document.isObject() ? Stats::fromJson(document.object()) : std::nullopt;
    if (decoded) {
        m_stats = *decoded;
        return;
    }
    m_stats = Stats{};
    m_stats.firstUse = m_clock();
    save();
}

void StatsStore::save()
{
    m_settings->setValue(statsKey, QJsonDocument(m_stats.toJson()).toJson(QJsonDocument::Compact));
}

void StatsStore::didChange()
{
    save();
    emit statsChanged();
}

void StatsStore::reload()
{
    m_settings->sync();
    load();
}

void StatsStore::recordScan(const QDateTime& started, const std::map<CategoryID, CategoryResult>& results)
{
    reload();
    ScanSummary scan;
    for (const auto& [category, result] : results) {
        scan.categorySizes.insert(Categories::rawValue(category), result.totalSize());
        scan.found += result.totalSize();
    }
    scan.date = m_clock();
    scan.seconds = std::max<qint64>(0, started.secsTo(scan.date));
    m_stats.lastScan = scan;
    didChange();
}

void StatsStore::recordCleanup(qint64 movedToTrash, qint64 removedByTools, qint64 items)
{
    if (items < 1)
        return;
    reload();
    const CleanupRecord record{QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper(), m_clock(),
                               movedToTrash, removedByTools, items};
    m_stats.cleanedBytes += movedToTrash + removedByTools;
    m_stats.cleanups += 1;
    m_stats.itemsRemoved += items;
    m_stats.history.prepend(record);
    while (m_stats.history.size() > historyLimit)
        m_stats.history.removeLast();
    didChange();
}

void StatsStore::recordStorage(const QMap<QString, qint64>& totals, qint64 notMeasured)
{
    reload();
    m_stats.lastStorage = StorageSummary{m_clock(), totals, notMeasured};
    didChange();
}

void StatsStore::recordStorage(const StorageReport& report)
{
    recordStorage(report.rawTotals(), report.notMeasured());
}
