#include "model/HistoryRecorder.h"

#include "history/HistoryStore.h"
#include "machinery/Background.h"
#include "model/HistoryEntry.h"

HistoryRecorder::HistoryRecorder(QString path, QObject* parent)
    : QObject(parent), m_path(std::move(path))
{
}

void HistoryRecorder::recordScan(const QDateTime& date, const std::map<CategoryID, CategoryResult>& results, const QString& home)
{
    run([date, results, home] { return HistoryEntry::fromScan(date, results, DiskSpace::current(home)); });
}

void HistoryRecorder::recordStorage(const StorageReport& report, const QString& home)
{
    run([report, home] { return HistoryEntry::fromStorage(report, DiskSpace::current(home)); });
}

void HistoryRecorder::refresh()
{
    run({});
}

void HistoryRecorder::compareStorageWith(qint64 earlierId)
{
    m_comparedWith = earlierId;
    run({});
}

namespace {

std::optional<HistoryGrowth::Pair> compareStorage(HistoryStore& store, const QList<HistoryRecord>& records,
                                                     std::optional<qint64> earlierId)
{
    auto pair = HistoryGrowth::pair(records, HistoryRecord::Kind::storage, std::nullopt);
    if (!pair)
        return std::nullopt;
    const auto chosen = std::find_if(records.begin(), records.end(), [&](const HistoryRecord& record) {
        return earlierId && record.id == *earlierId && record.kind == HistoryRecord::Kind::storage && record.id != pair->after.id;
    });
    if (chosen != records.end())
        pair->before = *chosen;
    pair->before.folders = store.folders(pair->before.id);
    pair->after.folders = store.folders(pair->after.id);
    return pair;
}

}  // namespace

// One pool task at a time adds the records waiting (if any) and reads the list back, so the
// screens see them at once and a reading never misses a record made before it.
void HistoryRecorder::run(std::function<HistoryRecord()> make)
{
    if (m_path.isEmpty())
        return;
    if (make)
        m_waiting.append(std::move(make));
    m_readAgain = true;
    if (!m_busy)
        startNext();
}

void HistoryRecorder::startNext()
{
    m_busy = true;
    m_readAgain = false;
    Background::run(this, [path = m_path, makes = std::exchange(m_waiting, {}), earlierId = m_comparedWith] {
        HistoryStore store(path);
        Outcome outcome;
        QStringList problems;
        for (const auto& make : makes) {
            if (const auto problem = store.record(make()))
                problems.append(*problem);
        }
        outcome.movedAside = store.notes();
        outcome.problems = problems;
        outcome.records = store.records();
        outcome.storageComparison = compareStorage(store, outcome.records, earlierId);
        return outcome;
    }, [this](const Outcome& outcome) {
        m_busy = false;
        m_records = outcome.records;
        // A file moved aside stays worth saying for the session; a failure only until a save works.
        m_movedAside += outcome.movedAside;
        m_notes = m_movedAside + outcome.problems;
        m_storageComparison = outcome.storageComparison;
        if (m_readAgain)
            startNext();
        emit changed();
    });
}
