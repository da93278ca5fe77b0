#include "history/HistorySchema.h"

#include <QSqlError>
#include <QSqlQuery>

namespace HistorySchema {

QStringList steps(int version)
{
    switch (version) {
    case 1:
        return {
            QStringLiteral("CREATE TABLE scans (id INTEGER PRIMARY KEY, kind TEXT NOT NULL, taken INTEGER NOT NULL,"
                           " disk_used INTEGER, disk_free INTEGER)"),
            QStringLiteral("CREATE INDEX scans_by_kind ON scans (kind, taken)"),
            // family: "category" or "bucket"
            QStringLiteral("CREATE TABLE totals (scan INTEGER NOT NULL REFERENCES scans (id) ON DELETE CASCADE,"
                           " family TEXT NOT NULL, name TEXT NOT NULL, bytes INTEGER NOT NULL,"
                           " PRIMARY KEY (scan, family, name)) WITHOUT ROWID"),
        };
    case 2:
        return {
            QStringLiteral("ALTER TABLE totals ADD COLUMN count INTEGER NOT NULL DEFAULT 0"),
            // Folder paths repeat from scan to scan; each is stored once.
            QStringLiteral("CREATE TABLE paths (id INTEGER PRIMARY KEY, path TEXT NOT NULL UNIQUE)"),
            QStringLiteral("CREATE TABLE folders (scan INTEGER NOT NULL REFERENCES scans (id) ON DELETE CASCADE,"
                           " bucket TEXT NOT NULL, path INTEGER NOT NULL REFERENCES paths (id),"
                           " bytes INTEGER NOT NULL, files INTEGER NOT NULL,"
                           " PRIMARY KEY (scan, bucket, path)) WITHOUT ROWID"),
            QStringLiteral("CREATE INDEX folders_by_path ON folders (path)"),
        };
    default:
        return {};
    }
}

bool upgrade(QSqlDatabase& database, int from, QString* error)
{
    QSqlQuery query(database);
    for (int version = from + 1; version <= current; ++version) {
        for (const QString& statement : steps(version)) {
            if (!query.exec(statement)) {
                *error = query.lastError().text();
                return false;
            }
        }
    }
    if (from != current && !query.exec(QStringLiteral("PRAGMA user_version = %1").arg(current))) {
        *error = query.lastError().text();
        return false;
    }
    return true;
}

}  // namespace HistorySchema
