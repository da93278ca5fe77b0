#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "support/TempTree.h"
#include "vocabulary/PathRules.h"

#include <gtest/gtest.h>
#include <map>

namespace {

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

// A concrete folder for a pattern: every "*" becomes a sample name.
QString sampleFor(const QString& pattern)
{
    QString path = pattern;
    return path.replace(QLatin1Char('*'), QStringLiteral("Sample"));
}

}  // namespace

TEST(KnownLocationsTest, CrashReportsHaveOneRowAndAreNotAlsoAnAppsLogs)
{
    TempTree tree;
    ScanContext context;
    context.home = tree.dir(QStringLiteral("home"));
    tree.file(QStringLiteral("home/Library/Logs/DiagnosticReports/Finder-2024-01-15.ips"), 10);
    tree.file(QStringLiteral("home/Library/Logs/CoreSimulator/CoreSimulator.log"), 10);
    tree.file(QStringLiteral("home/Library/Logs/Homebrew/wget/01.configure"), 10);
    QStringList paths;
    for (const auto& candidate : LocationScanner::candidates(KnownLocations::logs(), context).list)
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
