#include "model/SettingsStore.h"
#include "support/SettingsFile.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

const QString home = QStringLiteral("/Users/ada");
const QDateTime addedAt(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);  // 736257600 s after 2001

CleanupItem trashItem(const QString& id, CategoryID category, const QStringList& paths)
{
    CleanupItem item;
    item.id = id;
    item.category = category;
    item.title = QStringLiteral("Title of ") + id;
    QList<FileTarget> targets;
    for (const QString& path : paths) {
        FileTarget target;
        target.path = path;
        targets.append(target);
    }
    item.removal = Removal::trash(targets);
    item.size = 4096;
    return item;
}

CleanupItem pathItem(const QString& path, CategoryID category = CategoryID::largeFiles)
{
    return trashItem(path, category, {path});
}

class SettingsStoreTest : public ::testing::Test {
protected:
    std::unique_ptr<SettingsStore> store(QSettings* settings)
    {
        auto created = std::make_unique<SettingsStore>(settings, home);
        created->setClock([] { return addedAt; });
        return created;
    }
    std::unique_ptr<SettingsStore> reopened() { return store(file.reopen()); }

    SettingsFile file;
};

TEST_F(SettingsStoreTest, ScanFoldersRoundTripAndNeverBecomeEmpty)
{
    auto settings = store(file.settings());
    int changed = 0;
    QObject::connect(settings.get(), &SettingsStore::scanRootsChanged, [&] { ++changed; });
    settings->addRoot(QStringLiteral("/Volumes/Work/code/"));
    settings->addRoot(QStringLiteral("/Volumes/Work/code"));
    settings->addRoot(QStringLiteral("relative/folder"));
    EXPECT_EQ(changed, 1);

    // A one-element list comes back from the INI file as a plain string.
    settings = reopened();
    settings->removeRoot(home);
    EXPECT_EQ(reopened()->scanRoots(), QStringList{QStringLiteral("/Volumes/Work/code")});

    settings = reopened();
    settings->removeRoot(QStringLiteral("/Volumes/Work/code"));
    EXPECT_EQ(reopened()->scanRoots(), QStringList{home});
}

TEST_F(SettingsStoreTest, RootAndHomeAreNeverSafeFolders)
{
    const auto settings = store(file.settings());
    int changed = 0;
    QObject::connect(settings.get(), &SettingsStore::safeListChanged, [&] { ++changed; });
    for (const QString& path : {QStringLiteral("/"), home, home + QStringLiteral("/"), QStringLiteral("Music")})
        settings->addSafeFolder(path);
    EXPECT_EQ(changed, 0);
    EXPECT_FALSE(file.text().contains("safeFolders"));

    settings->addSafeFolder(home + QStringLiteral("/Music/"));
    settings->addSafeFolder(home + QStringLiteral("/Music"));
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(reopened()->safeFolders(), QStringList{home + QStringLiteral("/Music")});
}

TEST_F(SettingsStoreTest, SafeItemKeepsWhatTheSafeListScreenShows)
{
    auto settings = store(file.settings());
    const CleanupItem app = trashItem(QStringLiteral("/Applications/Tool.app"), CategoryID::apps,
        {QStringLiteral("/Applications/Tool.app"), home + QStringLiteral("/Library/Caches/com.tool")});
    const CleanupItem cache = trashItem(QStringLiteral("cache:tool"), CategoryID::appCaches,
        {home + QStringLiteral("/Library/Caches/a"), home + QStringLiteral("/Library/Caches/b")});
    settings->addSafeItem(app);
    settings->addSafeItem(cache);
    settings->addSafeItem(cache);

    const auto loaded = reopened();
    EXPECT_EQ(loaded->safeItems(), (QStringList{app.id, cache.id}));
    const SafeItemInfo appInfo = loaded->safeItemInfo().value(app.id);
    EXPECT_EQ(appInfo, (SafeItemInfo{app.title, QStringLiteral("apps"), QString(), app.removal.paths().first(),
                                     app.removal.paths(), 4096, addedAt}));
    EXPECT_FALSE(loaded->safeItemInfo().value(cache.id).paths);  // only apps rows keep every path
    EXPECT_EQ(loaded->protectedPaths(), app.removal.paths() + QStringList{cache.removal.paths().first()});
    const QJsonObject json = QJsonDocument::fromJson(file.settings()->value(QStringLiteral("safeItemInfo")).toByteArray()).object();
    EXPECT_EQ(json.value(cache.id).toObject().value(QStringLiteral("added")).toDouble(), 736257600.0);

    loaded->removeSafeItem(app.id);
    EXPECT_EQ(reopened()->safeItemInfo().keys(), QStringList{cache.id});
}

TEST_F(SettingsStoreTest, PathIdProtectsItsTreeAfterItsInfoIsLost)
{
    auto settings = store(file.settings());
    const QString folder = home + QStringLiteral("/code/app/node_modules");
    settings->addSafeItem(pathItem(folder, CategoryID::projects));
    settings->addSafeItem(trashItem(QStringLiteral("docker:buildcache"), CategoryID::docker, {}));
    file.settings()->setValue(QStringLiteral("safeItemInfo"), QByteArray("\x89PNG not json"));

    settings = reopened();
    EXPECT_EQ(settings->protectedPaths(), QStringList{folder});  // a tool id protects no path
    EXPECT_TRUE(settings->isSafe(pathItem(folder + QStringLiteral("/left-pad/index.js"))));
    EXPECT_FALSE(settings->isSafe(pathItem(folder + QStringLiteral("-old"))));
}

TEST_F(SettingsStoreTest, ProtectedPathsListFoldersFirstAndFollowEveryChange)
{
    const auto settings = store(file.settings());
    settings->addSafeItem(pathItem(QStringLiteral("/data/a.iso")));
    settings->addSafeFolder(QStringLiteral("/data/keep"));
    EXPECT_EQ(settings->protectedPaths(), (QStringList{QStringLiteral("/data/keep"), QStringLiteral("/data/a.iso")}));
    settings->removeSafeFolder(QStringLiteral("/data/keep"));
    EXPECT_EQ(settings->protectedPaths(), QStringList{QStringLiteral("/data/a.iso")});
    settings->removeSafeItem(QStringLiteral("/data/a.iso"));
    EXPECT_TRUE(settings->protectedPaths().isEmpty());
}

TEST_F(SettingsStoreTest, UndecodableSafeItemInfoReadsEmptyAndKeepsTheOtherKeys)
{
    const QByteArray garbage[] = {
        QByteArray("\x00\xff\x13garbage", 10),
        QByteArray("[1, 2, 3]"),
        QByteArray(R"({"a": {"title": "T", "category": "apps", "detail": "", "size": 1}})"),  // no date
    };
    for (const QByteArray& value : garbage) {
        SCOPED_TRACE(value.toStdString());
        QSettings* settings = file.withText(QByteArray());
        settings->setValue(QStringLiteral("scanRoots"), QStringList{QStringLiteral("/code"), QStringLiteral("/more")});
        settings->setValue(QStringLiteral("ignoredItems"), QStringList{QStringLiteral("/x"), QStringLiteral("y")});
        settings->setValue(QStringLiteral("safeFolders"), QStringList{QStringLiteral("/keep")});
        settings->setValue(QStringLiteral("safeItemInfo"), value);
        const auto loaded = reopened();
        EXPECT_TRUE(loaded->safeItemInfo().isEmpty());
        EXPECT_EQ(loaded->scanRoots(), (QStringList{QStringLiteral("/code"), QStringLiteral("/more")}));
        EXPECT_EQ(loaded->protectedPaths(), (QStringList{QStringLiteral("/keep"), QStringLiteral("/x")}));
    }
}

TEST_F(SettingsStoreTest, AbsentAndWrongTypedKeysReadAsDefaults)
{
    auto settings = store(file.settings());
    EXPECT_EQ(settings->scanRoots(), QStringList{home});
    EXPECT_EQ(settings->sizeFilterRaw(), 0);

    // As an INI file hands them back: everything is text.
    settings = store(file.withText("[General]\nscanRoots=5\nsafeFolders=keep, /ok\nsizeFilter=big\n"));
    EXPECT_EQ(settings->scanRoots(), QStringList{home});
    EXPECT_EQ(settings->safeFolders(), QStringList{QStringLiteral("/ok")});
    EXPECT_EQ(settings->sizeFilterRaw(), 0);

    // As a native store hands them over, with real types. Text is not data, even valid text.
    QSettings* typed = file.withText(QByteArray());
    typed->setValue(QStringLiteral("scanRoots"), 5);
    typed->setValue(QStringLiteral("ignoredItems"), QVariantMap{{QStringLiteral("a"), 1}});
    typed->setValue(QStringLiteral("safeFolders"), QVariantList{QStringLiteral("/a"), 7});
    typed->setValue(QStringLiteral("sizeFilter"), QStringList{QStringLiteral("100")});
    typed->setValue(QStringLiteral("safeItemInfo"),
                    QStringLiteral(R"({"a": {"title": "T", "category": "apps", "detail": "", "size": 1, "added": 0}})"));
    settings = store(typed);
    EXPECT_EQ(settings->scanRoots(), QStringList{home});
    EXPECT_TRUE(settings->safeItems().isEmpty());
    EXPECT_TRUE(settings->safeFolders().isEmpty());
    EXPECT_EQ(settings->sizeFilterRaw(), 0);
    EXPECT_TRUE(settings->safeItemInfo().isEmpty());

    settings->setSizeFilterRaw(1000);
    EXPECT_EQ(reopened()->sizeFilterRaw(), 1000);
}

TEST_F(SettingsStoreTest, WatchSettingsStayOffUnlessChosenAndSurviveARelaunch)
{
    auto settings = store(file.settings());
    EXPECT_EQ(settings->freeSpaceWarning(), FreeSpaceWarning::off);
    EXPECT_EQ(settings->scanSchedule(), ScanSchedule::never);
    EXPECT_FALSE(settings->isWatching());
    EXPECT_FALSE(settings->keepsWatchingWhenClosed());

    settings->setFreeSpaceWarning(FreeSpaceWarning::fivePercent);
    settings->setScanSchedule(ScanSchedule::monthly);
    settings->setKeepsWatchingWhenClosed(true);
    settings = reopened();
    EXPECT_EQ(settings->freeSpaceWarning(), FreeSpaceWarning::fivePercent);
    EXPECT_EQ(settings->scanSchedule(), ScanSchedule::monthly);
    EXPECT_TRUE(settings->isWatching());
    EXPECT_TRUE(settings->keepsWatchingWhenClosed());

    // A value this build does not know, or a one-text list from a native store, turns nothing on.
    settings = store(file.withText("[General]\nfreeSpaceWarning=3%\nscheduledScan=hourly\nkeepWatchingWhenClosed=yes\n"));
    EXPECT_EQ(settings->freeSpaceWarning(), FreeSpaceWarning::off);
    EXPECT_EQ(settings->scanSchedule(), ScanSchedule::never);
    EXPECT_FALSE(settings->keepsWatchingWhenClosed());
    QSettings* typed = file.withText(QByteArray());
    typed->setValue(QStringLiteral("freeSpaceWarning"), QStringList{QStringLiteral("10%")});
    typed->setValue(QStringLiteral("scheduledScan"), QStringList{QStringLiteral("weekly")});
    typed->setValue(QStringLiteral("keepWatchingWhenClosed"), QStringList{QStringLiteral("true")});
    settings = store(typed);
    EXPECT_EQ(settings->freeSpaceWarning(), FreeSpaceWarning::off);
    EXPECT_EQ(settings->scanSchedule(), ScanSchedule::never);
    EXPECT_FALSE(settings->keepsWatchingWhenClosed());
}

}  // namespace
