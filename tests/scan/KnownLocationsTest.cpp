#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "support/ScanRows.h"
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

// A Linux home keeps the same tools' data in its XDG folders; the tables know those places too.
// A home folder as Linux keeps it, for the rows and places only the Linux table has.
class KnownLinuxLocations : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (Platform::desktop() != Platform::Desktop::freedesktop)
            GTEST_SKIP() << "Linux places are offered only on Linux";
        context.home = tree.dir(QStringLiteral("home"));
    }

    TempTree tree;
    ScanContext context;
};

TEST_F(KnownLinuxLocations, ALinuxHomesCachesAreFoundWhereLinuxKeepsThem)
{
    tree.file(QStringLiteral("home/.cache/pip/http/blob"), 2'000'000);
    tree.file(QStringLiteral("home/.local/share/pnpm/store/v3/blob"), 2'000'000);
    tree.file(QStringLiteral("home/Android/Sdk/ndk/26.1/source.properties"), 2'000'000);
    tree.file(QStringLiteral("home/.config/Code/logs/main.log"), 2'000'000);
    const auto titles = [&](CategoryID category, const QList<Location>& group) {
        return titlesOf(LocationScanner(category, group).scan(context).at(category).items);
    };
    EXPECT_EQ(titles(CategoryID::packageCaches, KnownLocations::packageCaches()),
              QStringList({"pnpm store", "pip cache"}));
    EXPECT_EQ(titles(CategoryID::android, KnownLocations::android()), QStringList({"NDK 26.1"}));
    EXPECT_EQ(titles(CategoryID::logs, KnownLocations::logs()), QStringList({"VS Code logs"}));
}

TEST_F(KnownLinuxLocations, ADevelopersToolchainsAndCargoSourcesAreRowsWithHonestLabels)
{
    tree.file(QStringLiteral("home/.rustup/toolchains/stable-x86_64-unknown-linux-gnu/bin/rustc"), 3'000'000);
    tree.file(QStringLiteral("home/.rustup/toolchains/nightly-x86_64-unknown-linux-gnu/bin/rustc"), 2'000'000);
    tree.file(QStringLiteral("home/.pyenv/versions/3.11.4/bin/python3.11"), 4'000'000);
    tree.file(QStringLiteral("home/.cargo/registry/src/index.crates.io-6f17d22bba15001f/serde-1.0.0/lib.rs"), 1'500'000);
    tree.file(QStringLiteral("home/.cargo/registry/cache/index.crates.io-6f17d22bba15001f/serde-1.0.0.crate"), 1'200'000);

    const ScanOutputs outputs = LocationScanner(CategoryID::packageCaches, KnownLocations::packageCaches()).scan(context);
    std::map<QString, std::pair<Safety, QString>> rows;
    for (const CleanupItem& row : outputs.at(CategoryID::packageCaches).items)
        rows[row.title] = {row.safety(context.home), row.detail};
    const std::map<QString, std::pair<Safety, QString>> expected = {
        {"Cargo downloads", {Safety::safe, ""}},
        {"Cargo unpacked sources", {Safety::safe, "Unpacked again from Cargo's downloads on the next build"}},
        {"Rust toolchain · stable-x86_64-unknown-linux-gnu",
         {Safety::askAI, "Installed with rustup; `rustup toolchain install` brings it back"}},
        {"Rust toolchain · nightly-x86_64-unknown-linux-gnu",
         {Safety::askAI, "Installed with rustup; `rustup toolchain install` brings it back"}},
        {"Python · 3.11.4",
         {Safety::askAI, "Installed with pyenv, with the packages installed into it; `pyenv install` brings the Python back"}},
    };
    EXPECT_EQ(rows, expected);
}
