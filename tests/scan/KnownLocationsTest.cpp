#include "model/PathRules.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using Naming = Location::Naming;

const std::map<CategoryID, QList<Location>>& everyGroup()
{
    static const std::map<CategoryID, QList<Location>> groups = {
        {CategoryID::xcode, KnownLocations::xcode()},
        {CategoryID::android, KnownLocations::android()},
        {CategoryID::packageCaches, KnownLocations::packageCaches()},
        {CategoryID::editors, KnownLocations::editors()},
        {CategoryID::aiModels, KnownLocations::aiModels()},
        {CategoryID::logs, KnownLocations::logs()},
        {CategoryID::browserCaches, KnownLocations::browsers()},
        {CategoryID::devices, KnownLocations::devices()},
    };
    return groups;
}

const Location* findLocation(const QList<Location>& group, const QString& pattern)
{
    for (const Location& location : group) {
        if (location.paths.contains(pattern))
            return &location;
    }
    return nullptr;
}

// A concrete folder for a pattern: every "*" becomes a sample name.
QString sampleFor(const QString& pattern)
{
    QString path = pattern;
    return path.replace(QLatin1Char('*'), QStringLiteral("Sample"));
}

}  // namespace

TEST(KnownLocationsTest, ClaimedCacheFoldersAreTheFirstComponentsOfOwnedCachePatterns)
{
    const QSet<QString> expected = {
        // Xcode, Android
        QStringLiteral("com.apple.dt.Xcode"), QStringLiteral("Google"),
        // package caches
        QStringLiteral("Yarn"), QStringLiteral("Homebrew"), QStringLiteral("pip"), QStringLiteral("CocoaPods"),
        QStringLiteral("org.swift.swiftpm"), QStringLiteral("org.carthage.CarthageKit"), QStringLiteral("go-build"),
        QStringLiteral("pypoetry"), QStringLiteral("node-gyp"), QStringLiteral("electron"),
        QStringLiteral("electron-builder"), QStringLiteral("deno"), QStringLiteral("typescript"),
        QStringLiteral("composer"), QStringLiteral("ms-playwright"),
        // editors
        QStringLiteral("JetBrains"), QStringLiteral("Zed"),
        // browsers
        QStringLiteral("com.apple.Safari"), QStringLiteral("Chromium"), QStringLiteral("Microsoft Edge"),
        QStringLiteral("BraveSoftware"), QStringLiteral("Arc"), QStringLiteral("company.thebrowser.Browser"),
        QStringLiteral("Firefox"), QStringLiteral("com.operasoftware.Opera"), QStringLiteral("Vivaldi"),
        QStringLiteral("Yandex"),
    };
    EXPECT_EQ(KnownLocations::claimedCacheFolders(), expected);
}

TEST(KnownLocationsTest, EditorCachesCoverTheFiveCacheFoldersOfTheApp)
{
    const Location cursor = KnownLocations::editorCaches(QStringLiteral("Cursor"), QStringLiteral("Cursor caches"));
    EXPECT_EQ(cursor.paths, (QStringList{
        QStringLiteral("Library/Application Support/Cursor/Cache"),
        QStringLiteral("Library/Application Support/Cursor/CachedData"),
        QStringLiteral("Library/Application Support/Cursor/CachedExtensionVSIXs"),
        QStringLiteral("Library/Application Support/Cursor/Code Cache"),
        QStringLiteral("Library/Application Support/Cursor/GPUCache")}));
    EXPECT_EQ(cursor.naming, Naming::fixed(QStringLiteral("Cursor caches")));
    EXPECT_FALSE(cursor.perChild);
    EXPECT_EQ(findLocation(KnownLocations::editors(), QStringLiteral("Library/Application Support/Code/GPUCache"))->naming,
              Naming::fixed(QStringLiteral("VS Code caches")));
}

TEST(KnownLocationsTest, CrashReportsHaveOneRowAndAreNotAlsoAnAppsLogs)
{
    const QList<Location> logs = KnownLocations::logs();
    const Location* crashes = findLocation(logs, QStringLiteral("Library/Logs/DiagnosticReports"));
    ASSERT_NE(crashes, nullptr);
    EXPECT_EQ(crashes->naming, Naming::fixed(QStringLiteral("Crash reports")));
    EXPECT_FALSE(crashes->perChild);
    const Location* appLogs = findLocation(logs, QStringLiteral("Library/Logs"));
    ASSERT_NE(appLogs, nullptr);
    EXPECT_EQ(appLogs->naming, Naming::appName());
    EXPECT_TRUE(appLogs->perChild);

    TempTree tree;
    ScanContext context;
    context.home = tree.dir(QStringLiteral("home"));
    tree.file(QStringLiteral("home/Library/Logs/DiagnosticReports/Finder-2024-01-15.ips"), 10);
    tree.file(QStringLiteral("home/Library/Logs/CoreSimulator/CoreSimulator.log"), 10);
    tree.file(QStringLiteral("home/Library/Logs/Homebrew/wget/01.configure"), 10);
    QStringList paths;
    for (const auto& candidate : LocationScanner::candidates(logs, context).list)
        paths += candidate.paths;
    EXPECT_EQ(paths, (QStringList{context.home + QStringLiteral("/Library/Logs/DiagnosticReports"),
                                  context.home + QStringLiteral("/Library/Logs/Homebrew")}));
}

// With every known place present at once, no folder may be offered by two categories (or
// twice by one): removing it from one list would silently change the other.
TEST(KnownLocationsTest, NoPlaceIsClaimedByTwoRows)
{
    TempTree tree;
    ScanContext context;
    context.home = tree.dir(QStringLiteral("home"));
    for (const auto& [category, group] : everyGroup()) {
        for (const Location& location : group) {
            for (const QString& pattern : location.paths)
                tree.file(QStringLiteral("home/") + sampleFor(pattern) + QStringLiteral("/Entry/data"), 10);
        }
    }
    std::vector<std::pair<CategoryID, QString>> found;
    for (const auto& [category, group] : everyGroup()) {
        for (const auto& candidate : LocationScanner::candidates(group, context).list) {
            for (const QString& path : candidate.paths)
                found.emplace_back(category, path);
        }
    }
    ASSERT_GT(found.size(), 80u);
    for (size_t i = 0; i < found.size(); ++i) {
        for (size_t j = 0; j < found.size(); ++j) {
            if (i == j)
                continue;
            EXPECT_FALSE(PathRules::isAtOrBelow(found[i].second, found[j].second))
                << qPrintable(found[i].second) << " (" << qPrintable(Categories::rawValue(found[i].first))
                << ") lies in " << qPrintable(found[j].second) << " (" << qPrintable(Categories::rawValue(found[j].first)) << ")";
        }
    }
}
