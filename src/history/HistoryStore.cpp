#include "history/HistoryStore.h"

#include "history/HistorySchema.h"
#include "history/HistoryThinning.h"
#include "vocabulary/SystemPlaces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

namespace {

// SQLite's primary result codes, as the driver reports them.
const QString corruptCode = QStringLiteral("11");
const QString fullCode = QStringLiteral("13");
const QString notDatabaseCode = QStringLiteral("26");

bool isDamage(const QSqlError& error)
{
    return error.nativeErrorCode() == corruptCode || error.nativeErrorCode() == notDatabaseCode;
}

QString reason(const QSqlError& error)
{
    if (error.nativeErrorCode() == fullCode)
        //: Why the scan history could not be saved
        return QCoreApplication::translate("HistoryStore", "The disk is full.");
    return error.databaseText().isEmpty() ? error.text() : error.databaseText();
}

QVariant optionalBytes(const std::optional<qint64>& bytes)
{
    return bytes ? QVariant(*bytes) : QVariant(QMetaType::fromType<qint64>());
}

std::optional<qint64> optionalBytes(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional<qint64>(value.toLongLong());
}

// A free name beside `path` for a file that is kept but no longer used.
QString asideName(const QString& path, const QString& why, const QDateTime& now)
{
    const QString stem = path + QLatin1Char('.') + why + QLatin1Char('-') + now.toUTC().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = stem;
    for (int n = 2; QFileInfo::exists(name); ++n)
        name = stem + QLatin1Char('-') + QString::number(n);
    return name;
}

}  // namespace

HistoryStore::HistoryStore(QString path, Clock clock)
    : m_path(std::move(path)),
      m_connection(QStringLiteral("history-") + QUuid::createUuid().toString(QUuid::WithoutBraces)),
      m_clock(clock ? std::move(clock) : Clock([] { return QDateTime::currentDateTimeUtc(); }))
{
    open();
}

HistoryStore::~HistoryStore()
{
    closeConnection();
}

QString HistoryStore::defaultPath()
{
    return SystemPlaces::appDataFolder() + QStringLiteral("/history.sqlite");
}

QSqlDatabase HistoryStore::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

void HistoryStore::open()
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    Check check = openConnection();
    if (check == Check::damaged || check == Check::newer) {
        moveAside(check);
        check = openConnection();
    }
    if (check != Check::ready && !m_problem)
        //: Shown when the scan history file can't be used at all
        m_problem = QCoreApplication::translate("HistoryStore", "The scan history couldn't be opened.");
}

HistoryStore::Check HistoryStore::failure(const QSqlError& error)
{
    if (isDamage(error))
        return Check::damaged;
    m_problem = reason(error);
    return Check::failed;
}

HistoryStore::Check HistoryStore::openConnection()
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    db.setDatabaseName(m_path);
    // Another writer (the app or the report tool) holds the file for one scan's transaction.
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    if (!db.open()) {
        m_problem = reason(db.lastError());
        return Check::failed;
    }
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next())
        return failure(query.lastError());
    const int version = query.value(0).toInt();
    if (version > HistorySchema::current)
        return Check::newer;
    if (!query.exec(QStringLiteral("PRAGMA journal_mode = WAL")) || !query.exec(QStringLiteral("PRAGMA foreign_keys = ON")))
        return failure(query.lastError());
    if (version == HistorySchema::current)
        return Check::ready;
    // Another process may be bringing the same file up to date: read the version again
    // once this one holds the write lock.
    if (!query.exec(QStringLiteral("BEGIN IMMEDIATE")) || !query.exec(QStringLiteral("PRAGMA user_version")) || !query.next())
        return failure(query.lastError());
    QString error;
    if (!HistorySchema::upgrade(db, query.value(0).toInt(), &error) || !query.exec(QStringLiteral("COMMIT"))) {
        query.exec(QStringLiteral("ROLLBACK"));
        m_problem = error.isEmpty() ? reason(query.lastError()) : error;
        return Check::failed;
    }
    m_problem.reset();
    return Check::ready;
}

void HistoryStore::closeConnection()
{
    {
        QSqlDatabase db = database();
        if (db.isValid())
            db.close();
    }
    QSqlDatabase::removeDatabase(m_connection);
}

void HistoryStore::moveAside(Check why)
{
    const QString aside = asideName(m_path, why == Check::newer ? QStringLiteral("newer") : QStringLiteral("damaged"), m_clock());
    // The log and index files belong to the old file: left here they would be read into the new
    // one. They move before the connection closes, because closing deletes them by name.
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        if (QFileInfo::exists(m_path + suffix) && !QFile::rename(m_path + suffix, aside + suffix))
            QFile::remove(m_path + suffix);
    }
    closeConnection();
    const QString name = QFileInfo(aside).fileName();
    if (why == Check::newer)
        //: Note after the scan history file turned out to come from a newer app; %1 is the name it was kept under
        m_notes.append(QCoreApplication::translate("HistoryStore", "The scan history was written by a newer version of Dustlark. It was kept as “%1” and a new history was started.").arg(name));
    else
        //: Note after the scan history file turned out to be damaged; %1 is the name it was kept under
        m_notes.append(QCoreApplication::translate("HistoryStore", "The scan history couldn't be read. It was kept as “%1” and a new history was started.").arg(name));
}

std::optional<QString> HistoryStore::record(const HistoryRecord& record)
{
    QString error;
    bool damaged = false;
    if (!m_problem && !write(record, &error, &damaged) && damaged) {
        moveAside(Check::damaged);
        open();
        damaged = false;
        error.clear();
        if (!m_problem)
            write(record, &error, &damaged);
    }
    if (m_problem)
        error = *m_problem;
    if (error.isEmpty())
        return std::nullopt;
    //: Shown beside the scan's results when its summary could not be added to the history; %1 says why
    return QCoreApplication::translate("HistoryStore", "The scan history couldn't be saved. %1").arg(error);
}

bool HistoryStore::write(const HistoryRecord& record, QString* error, bool* damaged)
{
    QSqlDatabase db = database();
    QSqlQuery query(db);
    const auto fail = [&](const QSqlQuery& failed) {
        *error = reason(failed.lastError());
        *damaged = isDamage(failed.lastError());
        QSqlQuery(db).exec(QStringLiteral("ROLLBACK"));
        return false;
    };
    if (!query.exec(QStringLiteral("BEGIN IMMEDIATE")))
        return fail(query);
    query.prepare(QStringLiteral("INSERT INTO scans (kind, taken, disk_used, disk_free) VALUES (?, ?, ?, ?)"));
    query.addBindValue(HistoryRecord::rawKind(record.kind));
    query.addBindValue(record.date.toMSecsSinceEpoch());
    query.addBindValue(optionalBytes(record.diskUsed));
    query.addBindValue(optionalBytes(record.diskFree));
    if (!query.exec())
        return fail(query);
    const qint64 scan = query.lastInsertId().toLongLong();

    QSqlQuery total(db);
    total.prepare(QStringLiteral("INSERT INTO totals (scan, family, name, bytes, count) VALUES (?, ?, ?, ?, ?)"));
    const auto addTotals = [&](const QString& family, const QMap<QString, HistoryRecord::Tally>& tallies) {
        for (auto it = tallies.begin(); it != tallies.end(); ++it) {
            for (const QVariant& value : {QVariant(scan), QVariant(family), QVariant(it.key()), QVariant(it->bytes), QVariant(it->count)})
                total.addBindValue(value);
            if (!total.exec())
                return false;
        }
        return true;
    };
    if (!addTotals(QStringLiteral("category"), record.categories) || !addTotals(QStringLiteral("bucket"), record.buckets))
        return fail(total);

    QSqlQuery path(db);
    path.prepare(QStringLiteral("INSERT INTO paths (path) VALUES (?) ON CONFLICT (path) DO UPDATE SET path = excluded.path RETURNING id"));
    QSqlQuery folder(db);
    folder.prepare(QStringLiteral("INSERT INTO folders (scan, bucket, path, bytes, files) VALUES (?, ?, ?, ?, ?)"));
    for (auto it = record.folders.begin(); it != record.folders.end(); ++it) {
        path.addBindValue(it.key().path);
        if (!path.exec() || !path.next())
            return fail(path);
        const qint64 pathId = path.value(0).toLongLong();
        path.finish();
        for (const QVariant& value : {QVariant(scan), QVariant(it.key().bucket), QVariant(pathId), QVariant(it->bytes), QVariant(it->count)})
            folder.addBindValue(value);
        if (!folder.exec())
            return fail(folder);
    }
    QString thinError;
    if (!thin(&thinError)) {
        *error = thinError;
        QSqlQuery(db).exec(QStringLiteral("ROLLBACK"));
        return false;
    }
    if (!query.exec(QStringLiteral("COMMIT")))
        return fail(query);
    return true;
}

bool HistoryStore::thin(QString* error)
{
    QSqlDatabase db = database();
    QSqlQuery query(db);
    if (!query.exec(QStringLiteral("SELECT id, kind, taken FROM scans"))) {
        *error = reason(query.lastError());
        return false;
    }
    QList<HistoryThinning::Entry> entries;
    while (query.next()) {
        const auto kind = HistoryRecord::kindFromRaw(query.value(1).toString());
        if (kind)
            entries.append({query.value(0).toLongLong(), *kind, QDateTime::fromMSecsSinceEpoch(query.value(2).toLongLong(), Qt::UTC)});
    }
    const QList<qint64> surplus = HistoryThinning::surplus(entries, m_clock());
    if (surplus.isEmpty())
        return true;
    query.prepare(QStringLiteral("DELETE FROM scans WHERE id = ?"));
    for (qint64 id : surplus) {
        query.addBindValue(id);
        if (!query.exec()) {
            *error = reason(query.lastError());
            return false;
        }
    }
    if (!query.exec(QStringLiteral("DELETE FROM paths WHERE id NOT IN (SELECT path FROM folders)"))) {
        *error = reason(query.lastError());
        return false;
    }
    return true;
}

QList<HistoryRecord> HistoryStore::records()
{
    QList<HistoryRecord> list;
    if (m_problem)
        return list;
    QSqlDatabase db = database();
    QSqlQuery query(db);
    query.exec(QStringLiteral("BEGIN"));  // one snapshot for both reads
    query.exec(QStringLiteral("SELECT id, kind, taken, disk_used, disk_free FROM scans ORDER BY taken DESC, id DESC"));
    QHash<qint64, qsizetype> index;
    while (query.next()) {
        HistoryRecord record;
        record.id = query.value(0).toLongLong();
        record.kind = HistoryRecord::kindFromRaw(query.value(1).toString()).value_or(HistoryRecord::Kind::scan);
        record.date = QDateTime::fromMSecsSinceEpoch(query.value(2).toLongLong(), Qt::UTC);
        record.diskUsed = optionalBytes(query.value(3));
        record.diskFree = optionalBytes(query.value(4));
        index.insert(record.id, list.size());
        list.append(record);
    }
    query.exec(QStringLiteral("SELECT scan, family, name, bytes, count FROM totals"));
    while (query.next()) {
        const auto at = index.find(query.value(0).toLongLong());
        if (at == index.end())
            continue;
        HistoryRecord& record = list[*at];
        auto& tallies = query.value(1).toString() == QLatin1String("bucket") ? record.buckets : record.categories;
        tallies.insert(query.value(2).toString(), {query.value(3).toLongLong(), query.value(4).toLongLong()});
    }
    query.exec(QStringLiteral("COMMIT"));
    return list;
}

QMap<HistoryRecord::FolderKey, HistoryRecord::Tally> HistoryStore::folders(qint64 id)
{
    QMap<HistoryRecord::FolderKey, HistoryRecord::Tally> folders;
    if (m_problem)
        return folders;
    QSqlQuery query(database());
    query.prepare(QStringLiteral("SELECT folders.bucket, paths.path, folders.bytes, folders.files FROM folders"
                                 " JOIN paths ON paths.id = folders.path WHERE folders.scan = ?"));
    query.addBindValue(id);
    query.exec();
    while (query.next())
        folders.insert({query.value(0).toString(), query.value(1).toString()}, {query.value(2).toLongLong(), query.value(3).toLongLong()});
    return folders;
}
