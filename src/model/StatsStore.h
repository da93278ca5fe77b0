#pragma once

#include "vocabulary/CategoryID.h"
#include "storage/StorageReport.h"
#include "vocabulary/CategoryResult.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QSettings>

#include <functional>
#include <map>
#include <optional>

// A small lasting record of what the app has done on this computer: totals over all cleanups,
// the last full scan, the last storage analysis and the newest cleanups. Kept as one JSON value
// under "usageStats" in the preferences store handed in; unreadable stored statistics are
// replaced by a fresh record, silently.
//
// Thread-safety: GUI thread only.
class StatsStore : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatsStore)

public:
    using Clock = std::function<QDateTime()>;

    struct ScanSummary {
        QDateTime date;
        qint64 seconds = 0;               // how long the scan took, whole seconds
        qint64 found = 0;                 // bytes found in all categories
        QMap<QString, qint64> categorySizes;  // CategoryID raw value -> bytes
        bool operator==(const ScanSummary&) const = default;
    };

    struct StorageSummary {
        QDateTime date;
        QMap<QString, qint64> totals;  // storage bucket raw value -> bytes
        qint64 notMeasured = 0;        // bytes the analysis could not attribute
        // The totals, largest first (ties by bucket name, so the order is stable).
        QList<QPair<QString, qint64>> sortedBuckets() const;
        bool operator==(const StorageSummary&) const = default;
    };

    struct CleanupRecord {
        QString id;  // UUID text
        QDateTime date;
        qint64 movedToTrash = 0;
        qint64 removedByTools = 0;
        qint64 items = 0;
        bool operator==(const CleanupRecord&) const = default;
    };

    struct Stats {
        QDateTime firstUse;
        qint64 cleanedBytes = 0;
        qint64 cleanups = 0;
        qint64 itemsRemoved = 0;
        std::optional<ScanSummary> lastScan;
        std::optional<StorageSummary> lastStorage;
        QList<CleanupRecord> history;  // newest first
        bool operator==(const Stats&) const = default;

        QJsonObject toJson() const;
        // Absent when a required key is missing or any key has the wrong type.
        static std::optional<Stats> fromJson(const QJsonObject& object);
    };

    static constexpr int historyLimit = 30;

    // Loads the statistics from `settings` (which must outlive the store); when they are absent
    // or unreadable, starts fresh (first use = now) and saves at once. `clock` gives "now".
    explicit StatsStore(QSettings* settings, Clock clock = {}, QObject* parent = nullptr);

    const Stats& stats() const { return m_stats; }

    // A finished, unstopped full scan that began at `started`; replaces the last scan.
    void recordScan(const QDateTime& started, const std::map<CategoryID, CategoryResult>& results);
    // One finished cleanup; nothing is recorded when it removed no item.
    void recordCleanup(qint64 movedToTrash, qint64 removedByTools, qint64 items);
    // One storage analysis: bytes per bucket raw value and the bytes it could not attribute.
    void recordStorage(const QMap<QString, qint64>& totals, qint64 notMeasured);
    // The same from a report: its totals and the used space it could not attribute.
    void recordStorage(const StorageReport& report);
    void save();

signals:
    void statsChanged();

private:
    void load();
    // Every record starts from what is stored: the report tool's clean records into the same
    // store while the app runs, and the app's next save must not drop that.
    void reload();
    void didChange();

    QSettings* m_settings;
    Clock m_clock;
    Stats m_stats;
};
