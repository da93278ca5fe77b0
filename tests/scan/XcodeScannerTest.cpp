#include "actions/ToolStandIn.h"
#include "scan/XcodeScanner.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

QByteArray archivePlist(const char* app, const char* version, const char* build, const char* created, bool uploaded = false)
{
    const QByteArray upload = uploaded ? QByteArray("<key>Distributions</key><dict><key>uploadEvent</key><dict><key>state</key><string>success</string></dict></dict>")
                                       : QByteArray();
    return QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
<key>ApplicationProperties</key><dict>
<key>CFBundleShortVersionString</key><string>)") + version + "</string><key>CFBundleVersion</key><string>" + build
        + "</string></dict><key>CreationDate</key><date>" + created + "</date>" + upload + "<key>Name</key><string>" + app
        + "</string></dict></plist>\n";
}

const QString archives = QStringLiteral("home/Library/Developer/Xcode/Archives/");

class XcodeArchivesTest : public ::testing::Test {
protected:
    // An archive folder of about 1 MB (the smallest size worth a row) with its Info.plist.
    void archive(const QString& relative, const QByteArray& plist = {}) const
    {
        tree.file(archives + relative + QStringLiteral("/Products/Applications/App.app/App"), 1'100'000);
        if (!plist.isEmpty())
            tree.file(archives + relative + QStringLiteral("/Info.plist"), plist);
    }

    QList<CleanupItem> scan() const
    {
        XcodeScanner::Environment environment;
        environment.xcodeSelect = QStringLiteral("/nonexistent/xcode-select");
        environment.applications = tree.path(QStringLiteral("Applications"));
        ScanContext context;
        context.home = tree.path(QStringLiteral("home"));
        return XcodeScanner(environment).scan(context).at(CategoryID::xcode).items;
    }

    const CleanupItem& row(const QList<CleanupItem>& rows, const QString& relative) const { return rowWithId(rows, tree.path(archives + relative)); }

    TempTree tree;
};

TEST_F(XcodeArchivesTest, TheNewestArchiveOfEachAppKeepsTheOnlyBuild)
{
    archive(QStringLiteral("2024-05-01/Notes 1.xcarchive"), archivePlist("Notes", "2.0", "41", "2024-05-01T10:00:00Z", true));
    archive(QStringLiteral("2024-05-03/Notes 3.xcarchive"), archivePlist("Notes", "2.1", "43", "2024-05-03T10:00:00Z"));
    archive(QStringLiteral("2024-05-02/Notes 2.xcarchive"), archivePlist("Notes", "2.1", "42", "2024-05-02T10:00:00Z"));
    const QList<CleanupItem> rows = scan();

    const CleanupItem& newest = row(rows, QStringLiteral("2024-05-03/Notes 3.xcarchive"));
    EXPECT_EQ(newest.badge, QStringLiteral("Newest"));
    EXPECT_TRUE(newest.detail.startsWith(QStringLiteral("Version 2.1 (43) · archived "))) << qPrintable(newest.detail);
    EXPECT_TRUE(newest.detail.endsWith(QStringLiteral(" · newest archive of this app: its build and crash symbols exist only here")));
    EXPECT_EQ(newest.safety(tree.root()), Safety::risky);

    const CleanupItem& sameVersion = row(rows, QStringLiteral("2024-05-02/Notes 2.xcarchive"));
    EXPECT_NE(sameVersion.badge, QStringLiteral("Newest"));
    EXPECT_TRUE(sameVersion.detail.endsWith(QStringLiteral(" · the build comes back from its git tag; only crash symbols for this build "
                                                          "are lost · a newer build of this version exists"))) << qPrintable(sameVersion.detail);
    EXPECT_EQ(sameVersion.safety(tree.root()), Safety::askAI);

    const CleanupItem& oldest = row(rows, QStringLiteral("2024-05-01/Notes 1.xcarchive"));
    EXPECT_TRUE(oldest.detail.contains(QStringLiteral(" · uploaded to Apple · the build comes back from its git tag")));
    EXPECT_FALSE(oldest.detail.contains(QLatin1String("a newer build of this version exists")));
}

TEST_F(XcodeArchivesTest, UnreadableArchivesStayRiskyAndBinaryPlistsAreRead)
{
    QFile binary(QStringLiteral(DUSTLARK_FIXTURES "/plists/BinaryArchiveInfo.plist"));
    ASSERT_TRUE(binary.open(QIODevice::ReadOnly));
    archive(QStringLiteral("2024-05-20/Shop.xcarchive"), binary.readAll());
    archive(QStringLiteral("2024-05-21/Shop 2.xcarchive"));  // no Info.plist
    archive(QStringLiteral("2024-05-22/Shop 3.xcarchive"), "not a property list");
    const QList<CleanupItem> rows = scan();

    const CleanupItem& shop = row(rows, QStringLiteral("2024-05-20/Shop.xcarchive"));
    EXPECT_EQ(shop.badge, QStringLiteral("Newest")) << "the only archive that can be told apart";
    EXPECT_TRUE(shop.detail.startsWith(QStringLiteral("Version 3.1 (310) · archived "))) << qPrintable(shop.detail);
    for (const char* unreadable : {"2024-05-21/Shop 2.xcarchive", "2024-05-22/Shop 3.xcarchive"}) {
        const CleanupItem& item = row(rows, QString::fromLatin1(unreadable));
        EXPECT_FALSE(item.badge.has_value()) << unreadable;
        EXPECT_EQ(item.safety(tree.root()), Safety::risky) << unreadable;
    }
}

// An applications folder with the selected Xcode, a beta beside it and look-alikes.
class XcodeCopiesTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const char* name : {"Xcode.app", "Xcode-beta.app", "NotXcode.app"})
            tree.file(QStringLiteral("Applications/%1/Contents/MacOS/Xcode").arg(QLatin1String(name)), 50'000);
        tree.file(QStringLiteral("Applications/Xcode-notes.txt"), 10);
        tree.file(QStringLiteral("Applications/Xcode-beta.app/Contents/Info.plist"),
                  QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)"
                             "<key>CFBundleShortVersionString</key><string>16.0</string></dict></plist>"));
        xcodeSelect.answer({QStringLiteral("-p")}, tree.path(QStringLiteral("Applications/Xcode.app/Contents/Developer\n")));
        environment.xcodeSelect = xcodeSelect.path();
        environment.applications = tree.path(QStringLiteral("Applications"));
        environment.runningExecutables = [this] { return running; };
    }

    QList<CleanupItem> copies() const
    {
        ScanContext context;
        const XcodeScanner scanner(environment);
        return scanner.otherCopies(scanner.selectedXcode(), context);
    }

    TempTree tree;
    ToolStandIn xcodeSelect{QStringLiteral("canned-standin"), QStringLiteral("xcode-select")};
    XcodeScanner::Environment environment;
    QStringList running;
};

TEST_F(XcodeCopiesTest, OnlyCopiesOtherThanTheSelectedOneAreListed)
{
    const QList<CleanupItem> rows = copies();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].title, QStringLiteral("Xcode-beta 16.0"));
    EXPECT_EQ(rows[0].badge, QStringLiteral("Xcode app"));
    EXPECT_EQ(rows[0].detail, QStringLiteral("Another copy of Xcode; the one selected for builds is Xcode.app"));
    EXPECT_EQ(rows[0].removal.paths(), QStringList{tree.path(QStringLiteral("Applications/Xcode-beta.app"))});
    EXPECT_GE(rows[0].size, 50'000);
    EXPECT_FALSE(rows[0].isLocked());

    running = {tree.path(QStringLiteral("Applications/Xcode-beta.app/Contents/MacOS/Xcode"))};
    EXPECT_EQ(copies().value(0).lockedReason, QStringLiteral("Running. Quit it to remove it."));
    running = {tree.path(QStringLiteral("Applications/Xcode.app/Contents/MacOS/Xcode"))};
    EXPECT_FALSE(copies().value(0).isLocked()) << "the selected copy running doesn't lock the other";
}

TEST_F(XcodeCopiesTest, WithoutASelectedXcodeEveryCopyIsListed)
{
    const auto expectBothUnselected = [this] {
        const QList<CleanupItem> rows = copies();
        ASSERT_EQ(rows.size(), 2);
        for (const CleanupItem& row : rows)
            EXPECT_EQ(row.detail, QStringLiteral("Another copy of Xcode; the one selected for builds is not this one"));
    };
    xcodeSelect.answer({QStringLiteral("-p")}, QStringLiteral("/Library/Developer/CommandLineTools\n"));
    expectBothUnselected();
    xcodeSelect.answer({QStringLiteral("-p")}, QString(), 2, QStringLiteral("xcode-select: error: unable to get active developer directory"));
    expectBothUnselected();
}

TEST(XcodeSelected, TheApplicationOfADeveloperFolder)
{
    EXPECT_EQ(XcodeScanner::applicationOf(QStringLiteral("/Applications/Xcode.app/Contents/Developer")), QStringLiteral("/Applications/Xcode.app"));
    EXPECT_EQ(XcodeScanner::applicationOf(QStringLiteral("/Volumes/Tools/Xcode 15.4.app/Contents/Developer")),
              QStringLiteral("/Volumes/Tools/Xcode 15.4.app"));
    EXPECT_FALSE(XcodeScanner::applicationOf(QStringLiteral("/Library/Developer/CommandLineTools")).has_value());
}

}  // namespace
