#include "scan/AppsScanner.h"

#include "actions/ToolStandIn.h"
#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "machinery/FileSizer.h"
#include "scan/AppFixture.h"
#include "support/ScanRows.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

AppsScanner scannerFor(const AppFixture& fixture)
{
    AppsScanner scanner;
    scanner.folders = fixture.folders;
    scanner.codesign = std::nullopt;
    scanner.runningExecutables = [] { return QStringList(); };
    return scanner;
}

ScanOutput scanApps(const AppsScanner& scanner, const AppFixture& fixture, bool fullDiskAccess = true)
{
    ScanContext context;
    context.home = fixture.home();
    context.fullDiskAccess = fullDiskAccess;
    return scanner.scan(context)[CategoryID::apps];
}

QStringList sorted(QStringList paths)
{
    paths.sort();
    return paths;
}

QStringList identifiersOf(const QList<AppsScanner::App>& apps)
{
    QStringList identifiers;
    for (const AppsScanner::App& app : apps)
        identifiers.append(app.bundleID);
    return identifiers;
}

QByteArray entitlements(const QStringList& groups)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                     "<key>com.apple.security.app-sandbox</key><true/>"
                     "<key>com.apple.security.application-groups</key><array>";
    for (const QString& group : groups)
        xml += "<string>" + group.toUtf8() + "</string>";
    return xml + "</array></dict></plist>\n";
}

}  // namespace

TEST(AppsScanner, FindsAppsOneFolderDownAndSkipsWhatIsNoUsableApp)
{
    AppFixture f;
    f.app("Applications/Foo.app", "com.a.Foo");
    f.app("Applications/Utilities/Console Tool.app", "com.a.Tool", "Console Tool");
    f.app("Applications/Vendor/Suite/Deep.app", "com.a.Deep");
    f.app("Applications/NoID.app", "");
    f.tree.dir("Applications/NoPlist.app/Contents/MacOS");
    f.app("Applications/.Hidden.app", "com.a.Hidden");
    f.app("Applications/Dustlark.app", AppsScanner::ownBundleID);
    f.tree.symlink("Applications/Link.app", f.app("elsewhere/Other.app", "com.a.Other"));
    f.tree.file("Applications/Broken.app/Contents/Info.plist", QByteArray("<?xml version=\"1.0\"?><plist><dict><key>CFBundleIdentifier</key><str"));
    QFile::copy(DUSTLARK_FIXTURES "/plists/BinaryInfo.plist", f.tree.dir("Applications/Binary.app/Contents") + "/Info.plist");
    f.app("home/Applications/Mine.app", "com.b.Mine", "My Own App");
    f.app("System/Applications/Clock.app", "com.a.Clock");

    const auto apps = AppsScanner::installedApps(f.folders, f.home(), false);
    EXPECT_EQ(identifiersOf(apps), QStringList({"com.example.Binary", "com.a.Foo", "com.a.Tool", "com.b.Mine"}));
    ASSERT_EQ(apps.size(), 4);
    EXPECT_EQ(apps[0].name, QString::fromUtf8("Bïnary Éxample"));
    EXPECT_EQ(apps[1].name, "Foo");
    EXPECT_EQ(apps[3].name, "My Own App");
    EXPECT_EQ(identifiersOf(AppsScanner::installedApps(f.folders, f.home(), true)).last(), "com.a.Clock");
}

TEST(AppsScanner, NestedCodeFollowsTheFoldersDownToTheDepthLimit)
{
    AppFixture f;
    const QString host = f.app("Applications/Host.app", "com.h.Host");
    f.app("Applications/Host.app/Contents/PlugIns/L1.appex", "com.h.L1");
    f.app("Applications/Host.app/Contents/PlugIns/L1.appex/Contents/PlugIns/L2.appex", "com.h.L2");
    f.app("Applications/Host.app/Contents/PlugIns/L1.appex/Contents/PlugIns/L2.appex/Contents/PlugIns/L3.appex", "com.h.L3");
    f.app("Applications/Host.app/Contents/PlugIns/L1.appex/Contents/PlugIns/L2.appex/Contents/PlugIns/L3.appex/Contents/PlugIns/L4.appex", "com.h.L4");
    f.app("Applications/Host.app/Contents/PlugIns/Share.appex", "com.h.Share");
    f.app("Applications/Host.app/Contents/Library/LoginItems/Login.app", "com.h.Login");
    f.app("Applications/Host.app/Contents/Library/LoginItems/Login.app/Contents/XPCServices/Inner.xpc", "com.h.Inner");
    f.app("Applications/Host.app/Contents/Frameworks/Kit.framework/Versions/A/XPCServices/Fetch.xpc", "com.h.Fetch");
    f.tree.symlink("Applications/Host.app/Contents/Frameworks/Kit.framework/Versions/Current", "A");
    f.app("Applications/Host.app/Contents/Resources/NotCode.app", "com.h.Resource");

    EXPECT_EQ(AppsScanner::nestedCode(host),
              QStringList({"com.h.L1", "com.h.L2", "com.h.L3", "com.h.Share", "com.h.Login", "com.h.Inner", "com.h.Fetch"}));
}

TEST(AppsScanner, EveryLibraryPlaceOfTheAppGoesWithItButNothingAnotherAppClaims)
{
    AppFixture f;
    f.app("Applications/App.app", "com.foo.App");
    f.app("Applications/Helper.app", "com.foo.App.Helper");
    f.app("Applications/Pro.app", "com.foo.AppPro");
    const QStringList own = {
        f.libraryFolder("Application Support/com.foo.App"), f.libraryFolder("Caches/com.foo.App"),
        f.libraryFile("Preferences/com.foo.App.plist"), f.libraryFolder("Saved Application State/com.foo.App.savedState"),
        f.libraryFolder("HTTPStorages/com.foo.App"), f.libraryFile("HTTPStorages/com.foo.App.binarycookies"),
        f.libraryFolder("WebKit/com.foo.App"), f.libraryFolder("Logs/com.foo.App"),
        f.libraryFolder("Application Scripts/com.foo.App"), f.libraryFile("Cookies/com.foo.App.binarycookies"),
        f.libraryFolder("Containers/com.foo.App"), f.libraryFolder("Containers/com.foo.App.ShareExtension"),
        f.libraryFolder("Group Containers/group.com.foo.App"),
        f.libraryFile("Preferences/ByHost/com.foo.App.0A1B2C3D-0000-1111-2222-333344445555.plist"),
        f.libraryFile("LaunchAgents/com.foo.App.updater.plist"),
    };
    const QStringList others = {
        f.libraryFolder("Containers/com.foo.App.Helper"), f.libraryFolder("Caches/com.foo.App.Helper"),
        f.libraryFolder("Containers/com.foo.AppPro"), f.libraryFile("Preferences/com.foo.AppPro.plist"),
    };
    f.libraryFile("LaunchAgents/com.foo.App.notes.txt");
    f.libraryFolder("Containers/com.foo.AppOld");  // no installed app's, and not com.foo.App's either
    f.libraryFolder("Group Containers/group.com.foo.App.sync");

    const ScanOutput output = scanApps(scannerFor(f), f);
    const CleanupItem* app = rowTitled(output.items, "App");
    ASSERT_TRUE(app);
    EXPECT_EQ(sorted(app->removal.paths().mid(1)), sorted(own));
    EXPECT_EQ(app->removal.paths().first(), f.tree.path("Applications/App.app"));
    const CleanupItem* helper = rowTitled(output.items, "Helper");
    ASSERT_TRUE(helper);
    EXPECT_EQ(sorted(helper->removal.paths().mid(1)), sorted(others.mid(0, 2)));
    EXPECT_TRUE(output.notes.isEmpty());

    const ScanOutput withoutAccess = scanApps(scannerFor(f), f, false);
    const CleanupItem* limited = rowTitled(withoutAccess.items, "App");
    ASSERT_TRUE(limited);
    EXPECT_FALSE(limited->removal.paths().join('\n').contains("/Containers/"));
    EXPECT_EQ(withoutAccess.notes, QStringList{AppsScanner::fullDiskAccessNote()});
}

TEST(AppsScanner, AnApplicationGroupOrIdentifierOfTwoAppsGoesWithNeither)
{
    AppFixture f;
    f.app("Applications/One.app", "com.one.App");
    f.app("Applications/Two.app", "com.two.App");
    f.app("Applications/Copy.app", "com.dup.App");
    f.app("home/Applications/Copy.app", "com.dup.App");
    const ToolStandIn codesign("codesign-standin", "codesign");
    const QString tools = QFileInfo(codesign.path()).path();
    for (const auto& [bundle, groups] : {std::pair{"One.app", QStringList{"ABCDE12345.com.one.App.shared", "group.com.one.suite"}},
                                         std::pair{"Two.app", QStringList{"ABCDE12345.com.one.App.shared"}}}) {
        QFile out(tools + "/" + bundle + ".entitlements");
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(entitlements(groups));
    }
    // Named like One's, but Two uses it too; and One's own group, found only in its signature.
    const QString shared = f.libraryFolder("Group Containers/ABCDE12345.com.one.App.shared");
    const QString ownGroup = f.libraryFolder("Group Containers/group.com.one.suite");
    const QString duplicated = f.libraryFolder("Caches/com.dup.App");
    AppsScanner scanner = scannerFor(f);
    scanner.codesign = codesign.path();

    const ScanOutput output = scanApps(scanner, f);
    const QString everyPath = [&] {
        QStringList all;
        for (const CleanupItem& item : output.items)
            all += item.removal.paths();
        return all.join('\n');
    }();
    EXPECT_FALSE(everyPath.contains(shared));
    EXPECT_FALSE(everyPath.contains(duplicated));
    ASSERT_TRUE(rowTitled(output.items, "One"));
    EXPECT_TRUE(rowTitled(output.items, "One")->removal.paths().contains(ownGroup));
    EXPECT_EQ(output.items.size(), 4);
}

TEST(AppsScanner, ANameFolderAnotherAppClaimsStaysAndTheRowNamesThatApp)
{
    AppFixture f;
    f.app("Applications/Utilities/Notes.app", "com.one.Notes");
    f.app("Applications/Sticky Notes.app", "com.two.Sticky");
    const QString notes = f.libraryFolder("Application Support/Notes");
    const QString sticky = f.libraryFolder("Logs/Sticky Notes");

    const ScanOutput output = scanApps(scannerFor(f), f);
    const CleanupItem* notesRow = rowTitled(output.items, "Notes");
    const CleanupItem* stickyRow = rowTitled(output.items, "Sticky Notes");
    ASSERT_TRUE(notesRow && stickyRow);
    EXPECT_EQ(notesRow->removal.paths(), QStringList{f.tree.path("Applications/Utilities/Notes.app")});
    EXPECT_TRUE(notesRow->detail.endsWith(QString::fromUtf8(" · “Notes” folder stays: it may belong to Sticky Notes")))
        << qPrintable(notesRow->detail);
    EXPECT_FALSE(stickyRow->removal.paths().contains(notes));
    EXPECT_TRUE(stickyRow->removal.paths().contains(sticky));
}

TEST(AppsScanner, WordsSplitAtSpacesDotsAndCapitals)
{
    EXPECT_EQ(AppsScanner::words("Visual Studio Code"), QStringList({"Visual", "Studio", "Code"}));
    EXPECT_EQ(AppsScanner::words("com.vendor.NotesHelper"), QStringList({"com", "vendor", "Notes", "Helper"}));
    EXPECT_EQ(AppsScanner::words("HTMLEditor 2"), QStringList({"HTML", "Editor", "2"}));
    EXPECT_EQ(AppsScanner::words(QString::fromUtf8("Éclair-Böx")), QStringList({QString::fromUtf8("Éclair"), QString::fromUtf8("Böx")}));
}

TEST(AppsScanner, RowsSayWhatGoesAndWhenTheAppWasOpenedLargestFirst)
{
    AppFixture f;
    const QString small = f.app("Applications/Small.app", "com.s.Small", {}, 1000);
    const QString mine = f.app("home/Applications/Mine.app", "com.m.Mine", {}, 300'000);
    const QString data = f.libraryFolder("Caches/com.m.Mine", 50'000);
    const QString prefs = f.libraryFile("Preferences/com.m.Mine.plist", 100);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const qint64 opened = now.addDays(-3).toSecsSinceEpoch();
    const struct timespec times[2] = {{opened, 0}, {opened - 86400, 0}};  // read after its last write
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(mine + "/Contents/MacOS/Mine").constData(), times, 0), 0);

    const ScanOutput output = scanApps(scannerFor(f), f);
    ASSERT_EQ(output.items.size(), 2);
    const CleanupItem& first = output.items[0];
    EXPECT_EQ(first.title, "Mine");
    EXPECT_EQ(first.badge, "Your apps");
    const qint64 appBytes = FileSizer::measure(mine).bytes;
    const qint64 dataBytes = FileSizer::measure(data).bytes + FileSizer::measure(prefs).bytes;
    EXPECT_EQ(RelativeDate::expand(first.detail, now), QString("App %1 + app data %2 in 2 places · opened %3")
                                .arg(ByteCount::format(appBytes), ByteCount::format(dataBytes),
                                     RelativeDate::format(QDateTime::fromSecsSinceEpoch(opened), now)));
    EXPECT_EQ(first.size, appBytes + dataBytes);
    EXPECT_EQ(first.safety(f.home()), Safety::risky);
    const CleanupItem& second = output.items[1];
    EXPECT_EQ(second.id, small);
    EXPECT_FALSE(second.badge.has_value());
    EXPECT_EQ(second.detail, QString("App %1 · never opened").arg(ByteCount::format(FileSizer::measure(small).bytes)));
}

TEST(AppsScanner, ARunningAppIsLockedAndItsBundleGuardedForTheRemover)
{
    AppFixture f;
    const QString runner = f.app("Applications/Runner.app", "com.r.Runner");
    f.app("Applications/Idle.app", "com.r.Idle");
    const QString program = runner + "/Contents/MacOS/Runner";
    QFile::remove(program);
    ASSERT_TRUE(QFile::copy("/bin/sleep", program));
    QFile::setPermissions(program, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QProcess child;
    child.start(program, {"30"});
    ASSERT_TRUE(child.waitForStarted());
    AppsScanner scanner = scannerFor(f);
    scanner.runningExecutables = &AppsScanner::defaultRunningExecutables;

    const ScanOutput output = scanApps(scanner, f);
    child.kill();
    child.waitForFinished();
    const CleanupItem* running = rowTitled(output.items, "Runner");
    const CleanupItem* idle = rowTitled(output.items, "Idle");
    ASSERT_TRUE(running && idle);
    EXPECT_EQ(running->lockedReason, "Running. Quit it to remove it.");
    EXPECT_FALSE(idle->lockedReason.has_value());
    EXPECT_EQ(running->removal.as<Removal::Trash>()->targets.first().usedWhileRunning, QStringList{"Runner"});
}
