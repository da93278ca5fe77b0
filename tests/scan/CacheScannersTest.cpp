#include "platform/Platform.h"
#include "scan/AppCachesScanner.h"
#include "scan/BrowserCachesScanner.h"
#include "scan/EditorsScanner.h"
#include "scan/KnownLocations.h"
#include "scan/RunningApps.h"
#include "support/AgentsFixture.h"
#include "support/LockedFolders.h"
#include "support/ScanRows.h"

#include <gtest/gtest.h>

namespace {

// The Linux places of the same apps are rows of their own only in the Linux build.
bool linuxBuild()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

class CacheScannersTest : public ::testing::Test, public AgentsFixture {
protected:
    QList<CleanupItem> appCaches() const { return AppCachesScanner(environment()).scan(scanContext()).at(CategoryID::appCaches).items; }
    QList<CleanupItem> browserCaches() const
    {
        return BrowserCachesScanner().scan(scanContext()).at(CategoryID::browserCaches).items;
    }
    QList<CleanupItem> editorCaches() const { return EditorsScanner(environment()).scan(scanContext()).at(CategoryID::editors).items; }
};

}  // namespace

TEST_F(CacheScannersTest, RunningAppsAreKnownByBundleOrProgramName)
{
    bundle(QStringLiteral("Vendor App"), QStringLiteral("com.vendor.App"));
    // A helper app nested in the bundle runs on behalf of the outer app.
    tree.file(QStringLiteral("Applications/Vendor App.app/Contents/Frameworks/Helper.app/Contents/Info.plist"),
              QByteArray("<plist><dict><key>CFBundleIdentifier</key><string>com.vendor.App.helper</string></dict></plist>"));
    const RunningApps running = RunningApps::from(
        {tree.path(QStringLiteral("Applications/Vendor App.app/Contents/Frameworks/Helper.app/Contents/MacOS/Helper")),
         QStringLiteral("/opt/google/chrome/chrome"), QStringLiteral("/Applications/Broken.app/Contents/MacOS/Broken")});
    EXPECT_TRUE(running.isRunning(QStringLiteral("com.vendor.App")));
    EXPECT_TRUE(running.isRunning(QStringLiteral("com.Vendor.app.ShipIt")));
    EXPECT_FALSE(running.isRunning(QStringLiteral("com.vendor")));
    EXPECT_FALSE(running.isRunning(QStringLiteral("com.vendor.Other")));
    EXPECT_TRUE(running.isRunning(QStringLiteral("Chrome")));            // a folder named after the program
    EXPECT_TRUE(running.isRunning(QStringLiteral("com.google.Chrome")));  // a known owner's program
    EXPECT_FALSE(running.isRunning(QStringLiteral("com.google.Chrome.canary")));

    const auto owner = running.runningOwner(home(QStringLiteral("Library/Caches/Google/Chrome/Default")), context.home);
    ASSERT_TRUE(owner);
    EXPECT_EQ(owner->name, QStringLiteral("Google Chrome"));
    EXPECT_EQ(running.runningOwner(home(QStringLiteral(".cache/google-chrome")), context.home).has_value(), linuxBuild());
    EXPECT_FALSE(running.runningOwner(home(QStringLiteral("Library/Caches/Google/Chrome Canary")), context.home));
}

TEST_F(CacheScannersTest, AppCachesLeaveOutWhatOtherListsOwnAndSyncState)
{
    big(QStringLiteral("Library/Caches/Homebrew/downloads/x"));           // package caches
    big(QStringLiteral("Library/Caches/Google/Chrome/Default/Cache/x"));  // browser caches
    big(QStringLiteral("Library/Caches/JetBrains/IntelliJIdea2024.1/x"));  // editors
    big(QStringLiteral("Library/Caches/com.getdropbox.dropbox/x"));       // sync state
    big(QStringLiteral("Library/Caches/com.nowhere.Thing/x"));
    big(QStringLiteral("Library/Caches/Some Tool/x"));
    big(QStringLiteral(".cache/google-chrome/Default/x"));  // Linux: browser caches
    big(QStringLiteral(".cache/uv/x"));                     // Linux: package caches
    big(QStringLiteral(".cache/thumbnails/x"));
    big(QStringLiteral("Library/Containers/com.apple.mail/Data/Library/Mail Downloads/a.pdf"));
    big(QStringLiteral("Library/Containers/com.nowhere.Sandboxed/Data/Library/Caches/x"));
    big(QStringLiteral("Library/Group Containers/group.com.nowhere.Shared/Library/Caches/x"));

    QStringList titles;
    for (const CleanupItem& item : appCaches())
        titles.append(item.title + QStringLiteral(" | ") + item.detail);
    QStringList expected = {QStringLiteral("Some Tool | ~/Library/Caches/Some Tool"),
                            QStringLiteral("Thing | ~/Library/Caches/com.nowhere.Thing")};
    if (linuxBuild())
        expected.append(QStringLiteral("thumbnails | ~/.cache/thumbnails"));
    EXPECT_EQ(titles, expected + (QStringList{QStringLiteral("Mail attachment copies | Opened attachments; the messages keep the originals"),
                                   QStringLiteral("Sandboxed | ~/Library/Containers/com.nowhere.Sandboxed/Data/Library/Caches"),
                                   QStringLiteral("Shared | ~/Library/Group Containers/group.com.nowhere.Shared/Library/Caches")}));
    EXPECT_EQ(AppCachesScanner::appID(QStringLiteral("group.com.nowhere.Shared")), QStringLiteral("com.nowhere.Shared"));
    EXPECT_EQ(AppCachesScanner::appID(QStringLiteral("UBF8T346G9.Office")), QStringLiteral("UBF8T346G9.Office"));
}

TEST_F(CacheScannersTest, WebCachesInsideAppDataAreOneRowPerApp)
{
    tree.file(QStringLiteral("home/Library/Application Support/Slack/Code Cache/js/a"), 600'000);
    tree.file(QStringLiteral("home/Library/Application Support/Slack/Service Worker/CacheStorage/b"), 600'000);
    big(QStringLiteral("Library/Application Support/Slack/IndexedDB/data"));  // the app's own data
    big(QStringLiteral("Library/Application Support/Code/Code Cache/x"));      // the editors list's
    big(QStringLiteral("Library/Application Support/Cursor/GPUCache/x"));      // an uninstalled agent's
    big(QStringLiteral("Library/Application Support/com.apple.Thing/Code Cache/x"));
    tree.file(QStringLiteral("home/Library/Application Support/Tiny/GPUCache/x"), 900'000);

    const QList<CleanupItem> rows = appCaches();
    ASSERT_EQ(rows.size(), 1);
    const CleanupItem& slack = rows.first();
    EXPECT_EQ(slack.title, QStringLiteral("Slack"));
    EXPECT_EQ(slack.id, home(QStringLiteral("Library/Application Support/Slack#webcache")));
    EXPECT_EQ(slack.badge, QStringLiteral("Inside app data"));
    EXPECT_EQ(slack.detail, QStringLiteral("Web caches in ~/Library/Application Support/Slack"));
    EXPECT_EQ(slack.removal.paths(), (QStringList{home(QStringLiteral("Library/Application Support/Slack/Code Cache")),
                                                  home(QStringLiteral("Library/Application Support/Slack/Service Worker/CacheStorage"))}));
    EXPECT_FALSE(slack.lockedReason);

    running = {QStringLiteral("/Applications/Slack.app/Contents/MacOS/Slack")};
    EXPECT_EQ(appCaches().first().lockedReason, QStringLiteral("Running. Quit Slack to clean its caches."));
}

TEST_F(CacheScannersTest, ARunningBrowsersCacheIsShownLocked)
{
    big(QStringLiteral("Library/Caches/Google/Chrome/Default/Cache/x"));
    big(QStringLiteral("Library/Caches/Firefox/Profiles/x"));
    big(QStringLiteral(".cache/google-chrome/Default/Cache/x"));
    running = {bundle(QStringLiteral("Google Chrome"), QStringLiteral("com.google.Chrome"))};

    const QList<CleanupItem> rows = browserCaches();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows.at(0).title, QStringLiteral("Google Chrome"));
    EXPECT_EQ(rows.at(0).removal.paths().size(), linuxBuild() ? 2 : 1);  // the Linux folder joins the same row
    EXPECT_EQ(rows.at(0).lockedReason, QStringLiteral("Running. Quit Google Chrome to clean its cache."));
    EXPECT_EQ(rows.at(1).title, QStringLiteral("Firefox"));
    EXPECT_FALSE(rows.at(1).lockedReason);
}

TEST_F(CacheScannersTest, EditorCachesOfUninstalledAgentsAndRunningEditors)
{
    big(QStringLiteral("Library/Application Support/Code/CachedData/x"));
    big(QStringLiteral("Library/Application Support/Cursor/CachedData/x"));
    big(QStringLiteral("Library/Caches/JetBrains/IntelliJIdea2024.1/x"));
    big(QStringLiteral(".config/Code/Cache/x"));

    const QList<CleanupItem> idle = editorCaches();
    EXPECT_EQ(titlesOf(idle), (QStringList{QStringLiteral("VS Code caches"), QStringLiteral("JetBrains cache · IntelliJIdea2024.1")}));
    const CleanupItem* jetBrains = rowTitled(idle, QStringLiteral("JetBrains cache · IntelliJIdea2024.1"));
    ASSERT_TRUE(jetBrains);
    EXPECT_EQ(jetBrains->safety(context.home), Safety::askAI);
    EXPECT_FALSE(jetBrains->lockedReason);

    applications = {QStringLiteral("com.todesktop.230313mzl4w4u92")};
    running = {QStringLiteral("/opt/jetbrains-toolbox/jetbrains-toolbox"), QStringLiteral("/usr/share/code/code")};
    const QList<CleanupItem> rows = editorCaches();
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rowTitled(rows, QStringLiteral("VS Code caches"))->removal.paths().size(), linuxBuild() ? 2 : 1);
    EXPECT_EQ(rowTitled(rows, QStringLiteral("VS Code caches"))->lockedReason, QStringLiteral("Running. Quit VS Code to clean its caches."));
    EXPECT_FALSE(rowTitled(rows, QStringLiteral("Cursor caches"))->lockedReason);
    EXPECT_EQ(rowTitled(rows, QStringLiteral("JetBrains cache · IntelliJIdea2024.1"))->lockedReason,
              QStringLiteral("Running. Quit JetBrains Toolbox to clean its caches."));
}

TEST(KnownLocationsClaims, ClaimedCacheFoldersCoverEveryListsCacheFolder)
{
    const QSet<QString>& claimed = KnownLocations::claimedCacheFolders();
    for (const char* name : {"Homebrew", "Google", "JetBrains", "BraveSoftware", "com.apple.Safari", "Zed"})
        EXPECT_TRUE(claimed.contains(QString::fromUtf8(name))) << name;
    for (const char* name : {"google-chrome", "mozilla", "huggingface", "JetBrains", "zed"})
        EXPECT_EQ(claimed.contains(QString::fromUtf8(name)), linuxBuild() || QByteArray(name) == "JetBrains") << name;
    EXPECT_FALSE(claimed.contains(QStringLiteral("Library")));
    EXPECT_TRUE(KnownLocations::isSyncServiceData(QStringLiteral("com.apple.bird")));
    EXPECT_TRUE(KnownLocations::isSyncServiceData(QStringLiteral("UBF8T346G9.OneDriveStandaloneSuite")));
    EXPECT_FALSE(KnownLocations::isSyncServiceData(QStringLiteral("com.tinyspeck.slackmacgap")));
}

TEST_F(CacheScannersTest, AnUnreadableCacheFolderGivesTheNoteAndTheRestIsListed)
{
    big(QStringLiteral("Library/Caches/com.nowhere.Open/x"));
    big(QStringLiteral("Library/Caches/com.nowhere.Locked/x"));
    const auto found = withFoldersLocked(tree, {home(QStringLiteral("Library/Caches/com.nowhere.Locked"))}, [&] {
        const ScanOutput output = AppCachesScanner(environment()).scan(scanContext()).at(CategoryID::appCaches);
        return (output.notes + titlesOf(output.items)).join(QLatin1Char('|')).toUtf8();
    });
    if (!found)
        GTEST_SKIP() << cannotLockFolders;
    EXPECT_EQ(*found, QByteArray("Some folders couldn't be read: their permissions don't let you open them.|Open"));
}
