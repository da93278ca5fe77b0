#pragma once

#include <QDateTime>
#include <QMap>
#include <QString>

#include <optional>
#include <tuple>

// One kept scan or storage analysis: what the disk held and what each category, bucket and
// listed folder measured at that moment. A plain value; byte counts are those the scan showed.
struct HistoryRecord {
    enum class Kind { scan, storage };

    struct Tally {
        qint64 bytes = 0;
        qint64 count = 0;  // a category's items, a folder's files; 0 for a bucket
        bool operator==(const Tally&) const = default;
    };

    // A folder of a storage bucket's list; one path may be listed under two buckets.
    struct FolderKey {
        QString bucket;
        QString path;
        bool operator==(const FolderKey&) const = default;
        bool operator<(const FolderKey& other) const { return std::tie(bucket, path) < std::tie(other.bucket, other.path); }
    };

    qint64 id = 0;  // the store's number; 0 until stored
    Kind kind = Kind::scan;
    QDateTime date;
    std::optional<qint64> diskUsed;  // absent when the volume's figures could not be read
    std::optional<qint64> diskFree;
    QMap<QString, Tally> categories;  // CategoryID raw value -> bytes and items
    QMap<QString, Tally> buckets;     // storage bucket raw value -> bytes
    QMap<FolderKey, Tally> folders;   // left empty by listings of the store, filled by a load

    bool operator==(const HistoryRecord&) const = default;

    // Bytes found to review: the sum of the categories.
    qint64 found() const;
    // Bytes the storage analysis attributed: the sum of the buckets.
    qint64 measured() const;

    static QString rawKind(Kind kind);
    static std::optional<Kind> kindFromRaw(const QString& raw);
};
