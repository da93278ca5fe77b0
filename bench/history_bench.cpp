// The cost of the scan history.
//   history_bench record HOME FILE    analyses HOME once, then records that analysis into FILE;
//                                     prints both times in milliseconds
//   history_bench fill FILE SCANS     records SCANS full scans and SCANS storage analyses with
//                                     full folder lists (200 folders of every bucket, paths of
//                                     80 characters, new sizes each time), none thinned away;
//                                     prints the file's size after a checkpoint

#include "history/HistoryStore.h"
#include "model/HistoryEntry.h"
#include "storage/StorageAnalyzer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <cstdio>

namespace {

int record(const QString& home, const QString& file)
{
    QElapsedTimer timer;
    timer.start();
    StorageAnalyzer::Request request;
    request.home = home;
    const auto report = StorageAnalyzer::analyze(request);
    if (!report)
        return 1;
    const qint64 analysis = timer.restart();
    HistoryStore store(file);
    const auto problem = store.record(HistoryEntry::fromStorage(*report, DiskSpace::current(home)));
    const qint64 recording = timer.elapsed();
    if (problem) {
        std::fprintf(stderr, "%s\n", qPrintable(*problem));
        return 1;
    }
    int folders = 0;
    for (StorageBucket bucket : StorageBuckets::allCases())
        folders += static_cast<int>(report->foldersOf(bucket).size());
    std::printf("analysis %lld ms, recording %lld ms (%d folders), %.2f%%\n", analysis, recording, folders,
                100.0 * static_cast<double>(recording) / static_cast<double>(std::max<qint64>(1, analysis)));
    return 0;
}

// A record of `kind` whose figures differ from round to round.
HistoryRecord dated(HistoryRecord::Kind kind, const QDateTime& date, int round)
{
    HistoryRecord record;
    record.kind = kind;
    record.date = date;
    record.diskUsed = 400'000'000'000 + round;
    record.diskFree = 100'000'000'000 - round;
    return record;
}

HistoryRecord fullStorage(const QDateTime& date, int round)
{
    HistoryRecord record = dated(HistoryRecord::Kind::storage, date, round);
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        const QString raw = StorageBuckets::rawValue(bucket);
        record.buckets.insert(raw, {10'000'000'000LL + round, 0});
        for (int i = 0; i < StorageReport::foldersKept; ++i) {
            const QString path = QStringLiteral("/home/someone/projects/%1/folder-%2/").arg(raw).arg(i, 4, 10, QLatin1Char('0'));
            record.folders.insert({raw, path.leftJustified(80, QLatin1Char('x'))}, {1'000'000LL * i + round, 1'000 + i});
        }
    }
    return record;
}

HistoryRecord fullScan(const QDateTime& date, int round)
{
    HistoryRecord record = dated(HistoryRecord::Kind::scan, date, round);
    for (CategoryID category : Categories::allCases())
        record.categories.insert(Categories::rawValue(category), {1'000'000'000LL + round, 100 + round});
    return record;
}

int fill(const QString& file, int scans)
{
    // All of them within the last week of the store's clock, so thinning keeps every one.
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const qint64 step = 6LL * 24 * 3600 / scans;
    QElapsedTimer timer;
    timer.start();
    {
        HistoryStore store(file, [now] { return now; });
        for (int round = 0; round < scans; ++round) {
            const QDateTime date = now.addSecs(-step * (scans - round));
            if (store.record(fullScan(date, round)) || store.record(fullStorage(date.addSecs(60), round))) {
                std::fprintf(stderr, "recording failed\n");
                return 1;
            }
        }
        std::printf("kept: %lld records\n", static_cast<long long>(store.records().size()));
    }
    const qint64 elapsed = timer.elapsed();
    QProcess::execute(QStringLiteral("sqlite3"), {file, QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")});
    std::printf("%d scans and %d analyses in %lld ms; file %lld bytes, log %lld bytes\n", scans, scans, elapsed,
                QFileInfo(file).size(), QFileInfo(file + QStringLiteral("-wal")).size());
    return 0;
}

}  // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments.at(1) == QLatin1String("record"))
        return record(arguments.at(2), arguments.at(3));
    if (arguments.size() == 4 && arguments.at(1) == QLatin1String("fill"))
        return fill(arguments.at(2), arguments.at(3).toInt());
    std::fprintf(stderr, "usage: history_bench record HOME FILE | fill FILE SCANS\n");
    return 2;
}
