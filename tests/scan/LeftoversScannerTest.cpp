#include "format/RelativeDate.h"
#include "scan/LeftoversScanner.h"

#include "actions/ToolStandIn.h"
#include "scan/AppFixture.h"
#include "support/ScanRows.h"
#include "scan/FlatpakFixture.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

LeftoversScanner scannerFor(const AppFixture& fixture)
{
    LeftoversScanner scanner;
    scanner.folders = fixture.folders;
    scanner.flatpak = std::nullopt;
    scanner.codesign = std::nullopt;
    return scanner;
}

// Files made now change now; a scan that runs `daysLater` days from now sees them that old.
ScanOutput scanLeftovers(const LeftoversScanner& scanner, const AppFixture& fixture, int daysLater = 31, bool fullDiskAccess = true)
{
    ScanContext context;
    context.home = fixture.home();
    context.now = QDateTime::currentDateTimeUtc().addDays(daysLater);
    context.fullDiskAccess = fullDiskAccess;
    return scanner.scan(context)[CategoryID::leftovers];
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile out(path);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate)) << qPrintable(path);
    out.write(content);
}

QByteArray agentStarting(const QString& program, bool asArguments)
{
    const QByteArray head = "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict><key>Label</key><string>x</string>";
    if (asArguments)
        return head + "<key>ProgramArguments</key><array><string>" + program.toUtf8() + "</string><string>--daemon</string></array></dict></plist>";
    return head + "<key>Program</key><string>" + program.toUtf8() + "</string></dict></plist>";
}

}  // namespace

TEST(LeftoversScanner, IdentifiersAreReadFromEntryNames)
{
    const QList<std::pair<QString, std::optional<QString>>> cases = {
        {"com.gone.App.plist", "com.gone.App"},
        {"com.gone.App.savedState", "com.gone.App"},
        {"com.gone.App.binarycookies", "com.gone.App"},
        {"com.gone.App.ShipIt", "com.gone.App"},
        {"group.com.gone.App", "com.gone.App"},
        {"ABCDE12345.com.gone.shared", "com.gone.shared"},
        {"com.gone.App.0A1B2C3D-0000-1111-2222-333344445555.plist", "com.gone.App"},
        {"io.sentry", "io.sentry"},
        {"Foo", std::nullopt},
        {"Google Chrome", std::nullopt},
        {".GlobalPreferences.plist", std::nullopt},
        {"ByHost", std::nullopt},
    };
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(LeftoversScanner::identifier(name), expected) << qPrintable(name);
    EXPECT_EQ(LeftoversScanner::vendor("com.Vendor.App.helper"), "com.vendor");
}

TEST(LeftoversScanner, OnlyRemovedAppsOfVendorsWithNothingInstalledAreListed)
{
    AppFixture f;
    f.app("Applications/Editor.app", "com.maker.Editor");
    f.app("Applications/Host.app", "org.host.Host");
    f.app("Applications/Host.app/Contents/Library/LoginItems/Agent.app", "net.helper.Agent");
    f.app("System/Library/CoreServices/Finder.app", "com.sys.Finder");
    f.libraryFile("Preferences/com.maker.Editor.plist");         // installed
    f.libraryFile("Preferences/com.maker.OldViewer.plist");      // removed, but its vendor has an app
    f.libraryFolder("Application Support/net.helper.Agent");     // installed as nested code
    f.libraryFolder("Caches/com.sys.Finder");                    // installed among the system's services
    f.libraryFolder("Caches/com.apple.Safari");                  // Apple's
    f.libraryFolder("Caches/Unnamed Folder");                    // no identifier
    f.libraryFile("Preferences/com.gone.Viewer.plist");
    f.libraryFolder("Caches/com.gone.Viewer");
    f.libraryFolder("Containers/org.old.Reader", 50000);

    const ScanOutput output = scanLeftovers(scannerFor(f), f);
    EXPECT_EQ(titlesOf(output.items), QStringList({"org.old.Reader", "com.gone.Viewer"}));
    const CleanupItem* viewer = findRow(output.items, "leftovers:com.gone.Viewer");
    ASSERT_TRUE(viewer);
    EXPECT_EQ(viewer->removal.paths(), QStringList({f.tree.path("home/Library/Caches/com.gone.Viewer"),
                                                    f.tree.path("home/Library/Preferences/com.gone.Viewer.plist")}));
    EXPECT_EQ(viewer->badge, "2 places");
    EXPECT_EQ(viewer->safety(f.home()), Safety::safe);

    EXPECT_EQ(titlesOf(scanLeftovers(scannerFor(f), f, 31, false).items), QStringList{"com.gone.Viewer"});
}

TEST(LeftoversScanner, AGroupContainerAnInstalledAppSignedForIsNotLeftOver)
{
    AppFixture f;
    f.app("Applications/Suite.app", "com.suite.Main");
    f.libraryFolder("Group Containers/ABCDE12345.org.partner.shared");
    f.libraryFolder("Group Containers/ABCDE12345.org.lost.data");
    const ToolStandIn codesign("codesign-standin", "codesign");
    writeFile(QFileInfo(codesign.path()).path() + "/Suite.app.entitlements",
              "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>com.apple.security.application-groups</key>"
              "<array><string>ABCDE12345.org.partner.shared</string></array></dict></plist>");
    LeftoversScanner scanner = scannerFor(f);
    EXPECT_EQ(titlesOf(scanLeftovers(scanner, f).items).size(), 2);

    scanner.codesign = codesign.path();
    EXPECT_EQ(titlesOf(scanLeftovers(scanner, f).items), QStringList{"org.lost.data"});
}

TEST(LeftoversScanner, AnythingChangedInTheLastThirtyDaysIsLeftAlone)
{
    AppFixture f;
    f.libraryFolder("Application Support/com.gone.App");
    EXPECT_TRUE(scanLeftovers(scannerFor(f), f, 29).items.isEmpty());
    const ScanOutput later = scanLeftovers(scannerFor(f), f, 31);
    ASSERT_EQ(later.items.size(), 1);
    EXPECT_FALSE(later.items.first().badge.has_value());
    EXPECT_EQ(RelativeDate::expand(later.items.first().detail, QDateTime::currentDateTimeUtc().addDays(31)),
              "last changed last month · settings and caches only");
}

TEST(LeftoversScanner, PersonalDataIsNamedAndMakesTheRowAsk)
{
    AppFixture f;
    f.libraryFile("Application Support/com.gone.Browser/Default/History");
    f.libraryFile("Application Support/com.gone.Browser/Default/Login Data");
    f.libraryFile("Caches/com.gone.Browser/Bookmarks");  // a cache is not looked into
    f.libraryFile("Application Support/com.gone.Notes/Store/notes.SQLite");
    f.libraryFile("Application Support/com.gone.Notes/Inbox/letter.pdf");
    f.libraryFile("Caches/com.gone.Plain/cache.db");
    // What a leftover only links to is not in it: links are never followed.
    const QString elsewhere = QFileInfo(f.libraryFile("Mail/Inbox/letter.pdf")).path();
    const QString linked = f.libraryFolder("Application Support/com.gone.Linked");
    ASSERT_TRUE(QFile::link(elsewhere, linked + "/Inbox"));
    ASSERT_TRUE(QFile::link(elsewhere + "/letter.pdf", linked + "/Login Data"));

    const ScanOutput output = scanLeftovers(scannerFor(f), f);
    const CleanupItem* browser = findRow(output.items, "leftovers:com.gone.Browser");
    const CleanupItem* notes = findRow(output.items, "leftovers:com.gone.Notes");
    const CleanupItem* plain = findRow(output.items, "leftovers:com.gone.Plain");
    ASSERT_TRUE(browser && notes && plain);
    EXPECT_EQ(browser->userData, QStringList({"saved passwords", "browsing history"}));
    EXPECT_TRUE(browser->detail.endsWith(" · has saved passwords, browsing history")) << qPrintable(browser->detail);
    EXPECT_EQ(browser->safety(f.home()), Safety::askAI);
    EXPECT_EQ(notes->userData, QStringList({"documents", "databases"}));
    EXPECT_TRUE(plain->detail.endsWith(" · settings and caches only"));
    EXPECT_EQ(plain->safety(f.home()), Safety::safe);
    const CleanupItem* linkedRow = findRow(output.items, "leftovers:com.gone.Linked");
    ASSERT_TRUE(linkedRow);
    EXPECT_TRUE(linkedRow->userData.isEmpty()) << qPrintable(linkedRow->userData.join(", "));
}

TEST(LeftoversScanner, LaunchAgentsGoWithTheProgramTheyStart)
{
    AppFixture f;
    const QString installed = f.app("Applications/Sync.app", "com.sync.Sync");
    const QString agents = f.tree.dir("home/Library/LaunchAgents");
    // Named after nobody installed, but it starts an installed app's helper: in use.
    writeFile(agents + "/com.other.syncer.plist", agentStarting(installed + "/Contents/MacOS/Sync", true));
    writeFile(agents + "/com.gone.Updater.plist", agentStarting("/Applications/Gone Tool.app/Contents/MacOS/updater", false));
    writeFile(agents + "/com.broken.Agent.plist", "<?xml version=\"1.0\"?><plist><dict><key>Program</key>");
    f.libraryFile("Preferences/com.gone.Updater.plist");

    const ScanOutput output = scanLeftovers(scannerFor(f), f);
    EXPECT_EQ(titlesOf(output.items).size(), 2);
    const CleanupItem* gone = findRow(output.items, "leftovers:com.gone.Updater");
    ASSERT_TRUE(gone);
    EXPECT_EQ(gone->title, "Gone Tool");
    EXPECT_EQ(gone->removal.paths().size(), 2);
    EXPECT_TRUE(findRow(output.items, "leftovers:com.broken.Agent"));
}

// Installations made by the real flatpak: the person's own under the home, the system's, and
// one that a configuration file names. Only the data of the app uninstalled again is left over.
TEST(LeftoversScanner, FlatpakDataOfUninstalledAppsIsListedOnlyWhenTheInstalledListIsKnown)
{
    AppFixture f;
    const QStringList ids = {"org.kept.Editor", "org.system.Viewer", "org.extra.Player", "org.gone.Browser"};
    for (const QString& id : ids)
        f.tree.file("home/.var/app/" + id + "/config/settings", 100);
    f.tree.file("home/.var/app/org.gone.Browser/data/History", 100);
    const FlatpakFixture flatpak(ids);
    ASSERT_TRUE(flatpak.ok()) << qPrintable(flatpak.error());
    const QString own = f.tree.path("home/.local/share/flatpak");
    ASSERT_TRUE(flatpak.install(own, "org.kept.Editor")) << qPrintable(flatpak.error());
    ASSERT_TRUE(flatpak.install(own, "org.gone.Browser")) << qPrintable(flatpak.error());
    ASSERT_TRUE(flatpak.uninstall(own, "org.gone.Browser")) << qPrintable(flatpak.error());
    ASSERT_TRUE(flatpak.install(f.tree.path("system"), "org.system.Viewer")) << qPrintable(flatpak.error());
    ASSERT_TRUE(flatpak.install(f.tree.path("media/apps"), "org.extra.Player")) << qPrintable(flatpak.error());
    f.tree.file("etc/installations.d/media.conf",
                QByteArray("[Installation \"media\"]\nPath=") + f.tree.path("media/apps").toUtf8() + "\nDisplayName=Media\n");
    LeftoversScanner scanner = scannerFor(f);
    scanner.flatpak = FlatpakApps{{f.tree.path("system")}, f.tree.path("etc/installations.d"), {}};

    const ScanOutput output = scanLeftovers(scanner, f);
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(output.items.first().removal.paths(), QStringList{f.tree.path("home/.var/app/org.gone.Browser")});
    EXPECT_EQ(output.items.first().userData, QStringList{"browsing history"});

    // An installation that can't be read leaves every data folder alone, as does no flatpak.
    f.tree.file("broken/app", 10);
    scanner.flatpak->systemInstallations.append(f.tree.path("broken"));
    EXPECT_TRUE(scanLeftovers(scanner, f).items.isEmpty());
    scanner.flatpak = std::nullopt;
    EXPECT_TRUE(scanLeftovers(scanner, f).items.isEmpty());
}
