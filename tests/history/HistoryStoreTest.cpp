// The history file on disk: what goes in comes back, an older layout is brought up to date in
// place, a damaged or newer file is kept aside and a new one started, and two writers at once
// lose nothing.
#include "history/HistorySchema.h"
#include "history/HistoryStore.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <thread>

namespace {

// Asks the sqlite3 program, so the file is read by another SQLite than the store's own.
QString sqlite(const QString& file, const QString& statements)
{
    QProcess process;
    process.start(QStringLiteral("sqlite3"), {file, statements});
    process.waitForFinished(30'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

HistoryRecord scanRecord(const QDateTime& date, qint64 projects)
{
    HistoryRecord record;
    record.kind = HistoryRecord::Kind::scan;
    record.date = date;
    record.diskUsed = 40'000'000'000;
    record.diskFree = 60'000'000'000;
    record.categories = {{QStringLiteral("projects"), {projects, 3}}, {QStringLiteral("docker"), {900, 1}}};
    return record;
}

HistoryRecord storageRecord(const QDateTime& date)
{
    HistoryRecord record;
    record.kind = HistoryRecord::Kind::storage;
    record.date = date;
    record.buckets = {{QStringLiteral("developer"), {5'000, 0}}, {QStringLiteral("photos"), {7'000, 0}}};
    record.folders = {{{QStringLiteral("developer"), QStringLiteral("/h/code/node_modules")}, {4'000, 1'200}},
                      {{QStringLiteral("photos"), QStringLiteral("/h/Pictures")}, {7'000, 12}},
                      {{QStringLiteral("other"), QStringLiteral("/h/Pictures")}, {10, 1}}};
    return record;
}

const QDateTime day = QDateTime(QDate(2026, 11, 20), QTime(10, 0), Qt::UTC);

QStringList asideFiles(const TempTree& tree, const QString& why)
{
    return QDir(tree.root()).entryList({QStringLiteral("history.sqlite.") + why + QStringLiteral("-*")}, QDir::Files);
}

}  // namespace

TEST(HistoryStore, KeepsWhatWasRecordedInAWriteAheadLoggedFile)
{
    TempTree tree;
    const QString path = tree.path("history.sqlite");
    HistoryRecord scan = scanRecord(day, 2'000);
    HistoryRecord storage = storageRecord(day.addSecs(60));
    scan.diskFree.reset();  // an unreadable figure stays unknown, not 0
    {
        HistoryStore store(path, [] { return day.addDays(1); });
        EXPECT_FALSE(store.problem());
        EXPECT_FALSE(store.record(scan));
        EXPECT_FALSE(store.record(storage));
        EXPECT_TRUE(store.notes().isEmpty());
    }
    HistoryStore store(path);
    const QList<HistoryRecord> records = store.records();
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records.at(0).kind, HistoryRecord::Kind::storage) << "newest first";
    storage.id = records.at(0).id;
    scan.id = records.at(1).id;
    EXPECT_EQ(records.at(1), scan);
    EXPECT_EQ(store.folders(storage.id), storage.folders);
    storage.folders.clear();
    EXPECT_EQ(records.at(0), storage);
    EXPECT_EQ(sqlite(path, "PRAGMA journal_mode"), "wal");
    EXPECT_EQ(sqlite(path, "PRAGMA user_version"), QString::number(HistorySchema::current));
    EXPECT_EQ(sqlite(path, "SELECT count(*) FROM paths"), "2") << "a path listed under two buckets is stored once";
}

TEST(HistoryStore, BringsAVersionOneFileUpToDateAndKeepsItsScans)
{
    TempTree tree;
    const QString path = tree.path("history.sqlite");
    QString version1 = HistorySchema::steps(1).join(QStringLiteral(";\n"));
    sqlite(path, version1 + QStringLiteral(";\nPRAGMA user_version = 1;"
                                           "INSERT INTO scans VALUES (1, 'scan', %1, 100, 200);"
                                           "INSERT INTO totals VALUES (1, 'category', 'projects', 1234);")
                                .arg(day.toMSecsSinceEpoch()));

    HistoryStore store(path, [] { return day.addDays(2); });
    EXPECT_FALSE(store.problem());
    EXPECT_TRUE(store.notes().isEmpty()) << "an older file is no damaged file";
    EXPECT_FALSE(store.record(storageRecord(day.addDays(1))));
    const QList<HistoryRecord> records = store.records();
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records.at(1).date, day);
    EXPECT_EQ(records.at(1).diskUsed, 100);
    EXPECT_EQ(records.at(1).categories.value(QStringLiteral("projects")), (HistoryRecord::Tally{1234, 0}));
    EXPECT_EQ(store.folders(records.at(0).id).size(), 3);
    EXPECT_EQ(sqlite(path, "PRAGMA user_version"), QString::number(HistorySchema::current));
}

TEST(HistoryStore, KeepsADamagedOrNewerFileAsideAndStartsAnew)
{
    TempTree tree;
    const QString path = tree.path("history.sqlite");
    const QByteArray garbage(8192, '\x5a');
    tree.file("history.sqlite", garbage);
    tree.file("history.sqlite-wal", QByteArray("stale log"));
    {
        HistoryStore store(path, [] { return day; });
        EXPECT_FALSE(store.problem());
        ASSERT_EQ(store.notes().size(), 1);
        EXPECT_TRUE(store.notes().first().contains(QStringLiteral("history.sqlite.damaged-20261120-100000"))) << qPrintable(store.notes().first());
        EXPECT_FALSE(store.record(scanRecord(day, 1)));
        EXPECT_EQ(store.records().size(), 1);
    }
    for (const auto& [name, content] : {std::pair{"history.sqlite.damaged-20261120-100000", garbage},
                                        std::pair{"history.sqlite.damaged-20261120-100000-wal", QByteArray("stale log")}}) {
        QFile kept(tree.path(name));
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly)) << name;
        EXPECT_EQ(kept.readAll(), content) << name << " moved, not changed";
    }

    // The file of a later version of the app: its layout is unknown, so it is not touched.
    sqlite(path, "PRAGMA user_version = 99");
    HistoryStore store(path, [] { return day.addDays(1); });
    ASSERT_EQ(store.notes().size(), 1);
    EXPECT_TRUE(store.notes().first().contains(QStringLiteral("newer"))) << qPrintable(store.notes().first());
    EXPECT_TRUE(store.records().isEmpty());
    const QString newer = tree.path("history.sqlite.newer-20261121-100000");
    ASSERT_TRUE(QFile::exists(newer)) << qPrintable(asideFiles(tree, QStringLiteral("newer")).join(' '));
    EXPECT_EQ(sqlite(newer, "PRAGMA user_version"), "99");
}

TEST(HistoryStore, TwoWritersAtOnceLoseNoScan)
{
    TempTree tree;
    const QString path = tree.path("history.sqlite");
    HistoryStore(path, [] { return day; });  // made once, so neither writer creates the tables
    constexpr int perWriter = 40;
    std::atomic<int> failures = 0;
    const auto writer = [&](int offset) {
        HistoryStore store(path, [] { return day; });
        for (int i = 0; i < perWriter; ++i) {
            if (store.record(storageRecord(day.addSecs(offset + i))))
                ++failures;
        }
    };
    std::thread first(writer, 0);
    std::thread second(writer, 1'000);
    first.join();
    second.join();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(HistoryStore(path, [] { return day; }).records().size(), 2 * perWriter);
}

TEST(HistoryStore, ThinsOnEveryRecordAndDropsUnusedPaths)
{
    TempTree tree;
    const QString path = tree.path("history.sqlite");
    const QDateTime now = day.addDays(400);
    HistoryStore store(path, [now] { return now; });
    EXPECT_FALSE(store.record(storageRecord(day)));  // older than a year by the store's clock
    EXPECT_TRUE(store.records().isEmpty());
    EXPECT_EQ(sqlite(path, "SELECT count(*) FROM folders"), "0");
    EXPECT_EQ(sqlite(path, "SELECT count(*) FROM paths"), "0");
}
