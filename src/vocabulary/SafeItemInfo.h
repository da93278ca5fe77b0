#pragma once

#include "vocabulary/CategoryID.h"
#include "vocabulary/CleanupItem.h"

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

// What the Safe List remembers about a row, so the Safe List screen can show it once the row
// is in no result, and so its paths stay protected. Plain value.
struct SafeItemInfo {
    QString title;
    QString category;  // CategoryID raw value; kept as text so a newer build's category survives
    QString detail;
    std::optional<QString> path;       // the item's first path
    std::optional<QStringList> paths;  // every path; kept for apps items only
    qint64 size = 0;
    QDateTime added;

    // The info for `item`, dated `added`.
    static SafeItemInfo from(const CleanupItem& item, const QDateTime& added);

    std::optional<CategoryID> categoryID() const { return Categories::fromRawValue(category); }
    // The paths this entry protects: `paths` when present, otherwise `path` when present.
    QStringList protectedPaths() const;

    QJsonObject toJson() const;
    // Absent when a required key is missing or any key has the wrong type.
    static std::optional<SafeItemInfo> fromJson(const QJsonObject& object);

    // The "safeItemInfo" preference: a JSON object from item id to info.
    static QByteArray encodeAll(const QMap<QString, SafeItemInfo>& infos);
    // Empty when the data does not decode; one bad entry spoils the whole value, as it does
    // for the Mac build's typed decoder, so both builds read the same store the same way.
    static QMap<QString, SafeItemInfo> decodeAll(const QByteArray& data);

    bool operator==(const SafeItemInfo&) const = default;
};
