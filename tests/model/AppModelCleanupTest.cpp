#include "actions/Remover.h"
#include "model/CleanupLock.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QString trashFiles()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash/files";
}

// A row for a real file or folder of the tree, with its identity taken now, as a scan would.
CleanupItem realRow(CategoryID category, const TempTree& tree, const QString& relative, qint64 size)
{
    const auto target = FileTarget::make(tree.path(relative));
    EXPECT_TRUE(target.has_value());
    CleanupItem item = rowAt(category, tree.path(relative), size);
    item.removal = Removal::trash({*target});
    return item;
}

void show(AppModel& model, CategoryID category, QList<CleanupItem> items)
{
    ScanOutputs outputs;
    outputs[category].items = std::move(items);
    model.apply(outputs, false);
}

bool finished(AppModel& model)
{
    return model.cleanup() && model.cleanup()->phase() == CleanupSession::Phase::finished;
}

// Cleans the selection and waits for the session to finish.
bool runCleanup(AppModel& model)
{
    model.prepareCleanup();
    model.startCleanup();
    return waitUntil([&] { return finished(model); });
}

}  // namespace

TEST(AppModelCleanup, AFolderAndAFileInsideItGoOnceToTheTrash)
{
    TempTree tree;
    tree.file("Projects/app/node_modules/left-pad/index.js", 3000);
    ModelFixture fixture({}, tree.root());
    AppModel& model = fixture.model();
    const CleanupItem folder = realRow(CategoryID::projects, tree, "Projects/app/node_modules", 8000);
    const CleanupItem file = realRow(CategoryID::largeFiles, tree, "Projects/app/node_modules/left-pad/index.js", 3000);
    show(model, CategoryID::projects, {folder});
    show(model, CategoryID::largeFiles, {file});
    model.setSelected(folder, true);
    model.setSelected(file, true);

    model.prepareCleanup();
    ASSERT_TRUE(model.cleanup());
    ASSERT_EQ(model.cleanup()->items().size(), 1);
    EXPECT_EQ(model.cleanup()->items().first().id, folder.id);

    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return finished(model); }));
    EXPECT_EQ(model.cleanup()->processed(), 1);
    EXPECT_TRUE(model.cleanup()->failures().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(folder.id));
    EXPECT_TRUE(QFileInfo(trashFiles() + "/node_modules/left-pad/index.js").isFile());
    EXPECT_TRUE(model.result(CategoryID::projects).items.isEmpty());
    EXPECT_TRUE(model.selection().ids().isEmpty() || model.selection().ids() == QSet<QString>{file.id});
    ASSERT_FALSE(fixture.stats().stats().history.isEmpty());
    EXPECT_EQ(fixture.stats().stats().history.first().movedToTrash, 8000);
    model.closeCleanup();
    EXPECT_FALSE(model.cleanup());
    EXPECT_TRUE(model.lastRunCleanup());
}

TEST(AppModelCleanup, StopAfterTheFirstItemKeepsTheRestSelectedAndListed)
{
    TempTree tree;
    for (const char* name : {"a.log", "b.log", "c.log"})
        tree.file(QString("Library/Logs/") + name, 100);
    AppModel* modelPointer = nullptr;
    ModelFixture fixture({}, tree.root(), [&](AppModel::Services& s) {
        auto remove = s.removeItem;
        s.removeItem = [remove, &modelPointer](const CleanupItem& item, const RemovalEnvironment& environment) {
            modelPointer->cleanup()->requestStop();  // the person presses Stop during the first item
            return remove(item, environment);
        };
    });
    AppModel& model = fixture.model();
    modelPointer = &model;
    QList<CleanupItem> rows;
    for (const char* name : {"a.log", "b.log", "c.log"})
        rows.append(realRow(CategoryID::logs, tree, QString("Library/Logs/") + name, 100));
    show(model, CategoryID::logs, rows);
    model.setAll(rows, true);

    ASSERT_TRUE(runCleanup(model));

    EXPECT_TRUE(model.cleanup()->stopped());
    EXPECT_EQ(model.cleanup()->resultTitle(), "Cleaning stopped");
    EXPECT_EQ(model.result(CategoryID::logs).items.size(), 2);
    EXPECT_EQ(model.selection().ids().size(), 2);
    EXPECT_TRUE(QFileInfo::exists(tree.path("Library/Logs/b.log")));
}

TEST(AppModelCleanup, TheSecondOfTheLastTwoCopiesIsRefused)
{
    TempTree tree;
    for (const char* name : {"a.mov", "b.mov", "c.mov"})
        tree.file(name, 2000);
    ModelFixture fixture({}, tree.root());
    AppModel& model = fixture.model();
    QList<CleanupItem> copies;
    for (const char* name : {"a.mov", "b.mov", "c.mov"}) {
        CleanupItem copy = realRow(CategoryID::duplicates, tree, name, 2000);
        copy.duplicateGroup = "g";
        copies.append(copy);
    }
    show(model, CategoryID::duplicates, copies);
    model.setSelected(copies[0], true);
    model.setSelected(copies[1], true);
    // Safe-listing the unselected copy leaves the two selected ones as the whole group.
    model.addToSafeList(copies[2]);
    ASSERT_EQ(model.result(CategoryID::duplicates).items.size(), 2);

    ASSERT_TRUE(runCleanup(model));

    const CleanupSession& session = *model.cleanup();
    EXPECT_EQ(session.movedToTrash(), 2000);
    ASSERT_EQ(session.failures().size(), 1);
    EXPECT_EQ(session.failures().first().title, "b.mov");
    EXPECT_EQ(session.failures().first().reason, "It's the last copy of this file, so it was kept.");
    EXPECT_TRUE(QFileInfo::exists(tree.path("b.mov")));
    EXPECT_FALSE(QFileInfo::exists(tree.path("a.mov")));
}

namespace {

// A duplicates row as the finder makes it: identity, birth time and content stamp.
CleanupItem copyRow(const TempTree& tree, const QString& relative, const QString& group)
{
    CleanupItem copy = realRow(CategoryID::duplicates, tree, relative, 2000);
    copy.title = relative;
    copy.duplicateGroup = group;
    auto& target = std::get<Removal::Trash>(copy.removal.value).targets.first();
    struct stat info {};
    EXPECT_EQ(::lstat(QFile::encodeName(target.path).constData(), &info), 0);
    target.content = FileTarget::ContentStamp::of(info);
    return copy;
}

}  // namespace

// Each pair: the person ticks the first copy; outside the app the second is moved away,
// replaced by another file of its name, rewritten in place, or left alone. Only the last
// pair's ticked copy may go.
TEST(AppModelCleanup, ACopyWhoseOtherCopyIsNoLongerOnDiskAsScannedStays)
{
    TempTree tree;
    const QStringList pairs = {"moved", "replaced", "rewritten", "intact"};
    for (const QString& pair : pairs) {
        tree.file(pair + "/ticked.mov", 2000);
        tree.file(pair + "/other.mov", 2000);
    }
    ModelFixture fixture({}, tree.root());
    AppModel& model = fixture.model();
    QList<CleanupItem> rows;
    for (const QString& pair : pairs) {
        for (const char* name : {"/ticked.mov", "/other.mov"})
            rows.append(copyRow(tree, pair + name, pair));
    }
    show(model, CategoryID::duplicates, rows);
    for (qsizetype i = 0; i < rows.size(); i += 2)
        model.setSelected(rows[i], true);
    ASSERT_EQ(model.selection().ids().size(), 4);
    tree.dir("Elsewhere");
    ASSERT_EQ(::rename(QFile::encodeName(tree.path("moved/other.mov")).constData(),
                       QFile::encodeName(tree.path("Elsewhere/other.mov")).constData()), 0);
    tree.file("replaced/new.mov", 2000);  // made first, so its inode differs
    ASSERT_EQ(::rename(QFile::encodeName(tree.path("replaced/new.mov")).constData(),
                       QFile::encodeName(tree.path("replaced/other.mov")).constData()), 0);
    QFile rewritten(tree.path("rewritten/other.mov"));
    ASSERT_TRUE(rewritten.open(QIODevice::Append));
    ASSERT_EQ(rewritten.write("edit"), 4);
    rewritten.close();

    ASSERT_TRUE(runCleanup(model));

    const CleanupSession& session = *model.cleanup();
    QStringList kept;
    for (const CleanupSession::Failure& failure : session.failures()) {
        kept.append(failure.title);
        EXPECT_EQ(failure.reason, "The other copies are gone, so this is the last one. It was kept.");
    }
    EXPECT_EQ(kept, QStringList({"moved/ticked.mov", "replaced/ticked.mov", "rewritten/ticked.mov"}));
    for (const QString& pair : pairs.mid(0, 3))
        EXPECT_TRUE(QFileInfo::exists(tree.path(pair + "/ticked.mov"))) << pair.toStdString();
    EXPECT_EQ(session.movedToTrash(), 2000);
    EXPECT_FALSE(QFileInfo::exists(tree.path("intact/ticked.mov")));
    EXPECT_TRUE(QFileInfo::exists(tree.path("intact/other.mov")));
}

TEST(AppModelCleanup, QuitWaitsForTheRunningCleanupToStop)
{
    TempTree tree;
    tree.file("Library/Logs/a.log", 100);
    tree.file("Library/Logs/b.log", 100);
    std::atomic<bool> release{false};
    ModelFixture fixture({}, tree.root(), [&](AppModel::Services& s) {
        s.removeItem = [&release](const CleanupItem&, const RemovalEnvironment&) {
            while (!release)
                QThread::msleep(2);
            return RemovalOutcome::movedToTrash();
        };
    });
    AppModel& model = fixture.model();
    const QList<CleanupItem> rows = {realRow(CategoryID::logs, tree, "Library/Logs/a.log", 100),
                                     realRow(CategoryID::logs, tree, "Library/Logs/b.log", 100)};
    show(model, CategoryID::logs, rows);
    model.setAll(rows, true);
    model.prepareCleanup();
    model.startCleanup();
    ASSERT_TRUE(model.isChangingFiles());
    ASSERT_TRUE(waitUntil([&] { return model.cleanup()->current() == "a.log"; }));

    bool quit = false;
    model.stopForQuit([&] { quit = true; });
    EXPECT_FALSE(quit);
    release = true;
    ASSERT_TRUE(waitUntil([&] { return quit; }));
    EXPECT_EQ(model.cleanup()->processed(), 1);  // the current item finished, then it stopped
    EXPECT_FALSE(model.isChangingFiles());
}

TEST(AppModelCleanup, NoScanStartsWhileASessionIsOpen)
{
    auto scanner = std::make_shared<FakeScanner>(QList{CategoryID::logs}, ScanOutputs{});
    ModelFixture fixture({scanner});
    AppModel& model = fixture.model();
    const CleanupItem row = rowAt(CategoryID::logs, "/Users/a/Library/Logs/a.log");
    show(model, CategoryID::logs, {row});
    model.setSelected(row, true);
    model.prepareCleanup();
    model.startScan();
    EXPECT_FALSE(model.isScanning());
    model.closeCleanup();  // Cancel on the confirmation discards the session
    EXPECT_FALSE(model.cleanup());
    model.startScan();
    EXPECT_TRUE(model.isScanning());
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));
    EXPECT_EQ(scanner->runs(), 1);
}

TEST(AppModelCleanup, ARefusedRowStaysListedUntickedAndTheStorageReportGoesOutOfDateOnlyWithARemoval)
{
    TempTree tree;
    tree.file("Downloads/old.zip", 3000);
    tree.file("Downloads/kept.zip", 3000);
    ModelFixture fixture({}, tree.root(), [](AppModel::Services& services) {
        services.analyzeStorage = [](const StorageAnalyzer::Request&) { return std::optional(StorageReport{}); };
    });
    AppModel& model = fixture.model();
    const CleanupItem refused = realRow(CategoryID::largeFiles, tree, "Downloads/kept.zip", 3000);
    show(model, CategoryID::largeFiles, {refused});
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return model.storageReport().has_value(); }));
    ASSERT_EQ(std::remove(QFile::encodeName(tree.path("Downloads/kept.zip")).constData()), 0);
    tree.file("Downloads/kept.zip", 5000);  // another file now: refused, nothing changes
    model.setSelected(refused, true);
    ASSERT_TRUE(runCleanup(model));
    EXPECT_EQ(model.result(CategoryID::largeFiles).items, QList<CleanupItem>{refused});
    EXPECT_FALSE(model.selection().contains(refused.id)) << "a failed row stays ticked for the next cleanup";
    EXPECT_FALSE(model.isStorageOutdated()) << "a cleanup that removed nothing leaves the figures as they were";
    model.closeCleanup();

    const CleanupItem old = realRow(CategoryID::largeFiles, tree, "Downloads/old.zip", 3000);
    show(model, CategoryID::largeFiles, {old});
    model.setSelected(old, true);
    ASSERT_TRUE(runCleanup(model));
    EXPECT_TRUE(model.isStorageOutdated());
    model.startStorageAnalysis();
    ASSERT_TRUE(waitUntil([&] { return !model.isAnalyzingStorage(); }));
    EXPECT_FALSE(model.isStorageOutdated());
}

// The report tool's clean and the app take the same lock: while another cleanup removes files,
// Clean waits with a sentence and removes nothing; the lock is free again once a cleanup ends.
TEST(AppModelCleanup, NeverRemovesWhileAnotherCleanupDoes)
{
    TempTree tree;
    tree.file("Projects/app/node_modules/left-pad/index.js", 3000);
    ModelFixture fixture({}, tree.root());
    AppModel& model = fixture.model();
    const CleanupItem folder = realRow(CategoryID::projects, tree, "Projects/app/node_modules", 8000);
    show(model, CategoryID::projects, {folder});
    model.setSelected(folder, true);
    model.prepareCleanup();

    QString reason;
    auto other = CleanupLock::acquire(CleanupLock::defaultPath(), &reason);
    ASSERT_TRUE(other) << qPrintable(reason);
    model.startCleanup();
    EXPECT_EQ(model.cleanup()->phase(), CleanupSession::Phase::confirming);
    EXPECT_EQ(model.toast(), CleanupLock::busyReason());
    EXPECT_TRUE(QFileInfo::exists(folder.id));

    other.reset();
    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return finished(model); }));
    EXPECT_FALSE(QFileInfo::exists(folder.id));
    bool busy = true;
    EXPECT_TRUE(CleanupLock::acquire(CleanupLock::defaultPath(), &reason, &busy)) << qPrintable(reason);
    EXPECT_FALSE(busy);
}
