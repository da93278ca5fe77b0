#pragma once

#include "history/HistoryGrowth.h"
#include "history/HistoryRecord.h"
#include "storage/StorageReport.h"
#include "vocabulary/CategoryResult.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>

// The app's side of the scan history: every full scan and storage analysis is added on a pool
// thread, and the kept scans (totals only, newest first) are read back for the screens.
//
// Thread-safety: GUI thread only; the file is touched only by the pool work it starts.
class HistoryRecorder : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HistoryRecorder)

public:
    // `path` empty: nothing is recorded or read.
    explicit HistoryRecorder(QString path, QObject* parent = nullptr);

    void recordScan(const QDateTime& date, const std::map<CategoryID, CategoryResult>& results, const QString& home);
    void recordStorage(const StorageReport& report, const QString& home);
    // Reads the kept scans again.
    void refresh();

    const QList<HistoryRecord>& records() const { return m_records; }
    // The newest storage analysis and the earlier one it is compared with, folders filled in:
    // the one before it, or the one chosen with compareStorageWith. Absent with fewer than two.
    const std::optional<HistoryGrowth::Pair>& storageComparison() const { return m_storageComparison; }
    // Compares the newest storage analysis with the kept one of that id from now on.
    void compareStorageWith(qint64 earlierId);
    // Files moved aside and the last failure to save, as sentences for the person.
    const QStringList& notes() const { return m_notes; }

signals:
    void changed();

private:
    struct Outcome {
        QList<HistoryRecord> records;
        QStringList movedAside;
        QStringList problems;
        std::optional<HistoryGrowth::Pair> storageComparison;
    };
    void run(std::function<HistoryRecord()> make);
    void startNext();

    QString m_path;
    QList<HistoryRecord> m_records;
    std::optional<HistoryGrowth::Pair> m_storageComparison;
    std::optional<qint64> m_comparedWith;
    QList<std::function<HistoryRecord()>> m_waiting;  // records to add on the next pool task
    bool m_busy = false;
    bool m_readAgain = false;  // something changed since the running task began
    QStringList m_movedAside;
    QStringList m_notes;
};
