#pragma once

#include "history/HistoryRecord.h"

#include <QList>
#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// The kept scans, in an SQLite file that the app and the report tool may write at the same time
// (write-ahead log, a busy timeout, one transaction per scan). A file that is damaged or was
// written by a newer version is moved aside, kept beside it, and a new one is started; `notes`
// says so. Each store has a connection of its own, named for it, and is used on one thread.
class HistoryStore {
public:
    using Clock = std::function<QDateTime()>;

    // Opens (or creates) the file at `path`; `clock` gives "now" for thinning.
    explicit HistoryStore(QString path, Clock clock = {});
    ~HistoryStore();
    HistoryStore(const HistoryStore&) = delete;
    HistoryStore& operator=(const HistoryStore&) = delete;

    // "history.sqlite" in the app's data folder.
    static QString defaultPath();

    // Sentences about files moved aside since this store was made.
    const QStringList& notes() const { return m_notes; }
    // Why the file can't be used; absent while it can.
    const std::optional<QString>& problem() const { return m_problem; }

    // Adds `record` and thins the history, in one transaction. Absent when it was saved, else the
    // sentence saying the history could not be saved and why.
    std::optional<QString> record(const HistoryRecord& record);

    // The kept scans, newest first, with their totals but without folders.
    QList<HistoryRecord> records();
    // The folders of the kept scan `id`.
    QMap<HistoryRecord::FolderKey, HistoryRecord::Tally> folders(qint64 id);

private:
    enum class Check { ready, damaged, newer, failed };

    QSqlDatabase database() const;
    Check openConnection();
    Check failure(const QSqlError& error);
    void closeConnection();
    void open();
    void moveAside(Check why);
    bool write(const HistoryRecord& record, QString* error, bool* damaged);
    bool thin(QString* error);

    QString m_path;
    QString m_connection;
    Clock m_clock;
    QStringList m_notes;
    std::optional<QString> m_problem;
};
