#include "vocabulary/CleanupItem.h"

#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "support/TempTree.h"
#include "vocabulary/ItemName.h"

#include <QMap>

#include <gtest/gtest.h>

namespace {

const QString home = QStringLiteral("/Users/a");

FileTarget target(const QString& path)
{
    FileTarget t;
    t.path = path;
    return t;
}

CleanupItem item(CategoryID category, const QString& path = {}, std::optional<Safety> level = std::nullopt)
{
    CleanupItem i;
    i.id = path.isEmpty() ? QStringLiteral("x") : path;
    i.category = category;
    QList<FileTarget> targets;
    if (!path.isEmpty())
        targets.append(target(path));
    i.removal = Removal::trash(targets);
    i.safetyLevel = level;
    return i;
}

CleanupItem dockerItem(DockerOperation operation)
{
    CleanupItem i = item(CategoryID::docker);
    i.removal = Removal::docker(std::move(operation));
    return i;
}

struct PathCase {
    CategoryID category;
    const char* path;
    Safety expected;
};

}  // namespace

// The labels people see on rows the package-cache scan really finds in a home folder: the Maven
// repository as a whole may hold locally installed artefacts, its sub-folders are downloads.
TEST(CleanupItemSafety, PackageCacheRowsFoundInAHomeCarryTheirLabels)
{
    TempTree tree;
    ScanContext context;
    context.home = tree.dir(QStringLiteral("home"));
    for (const char* folder : {".m2/repository/org/x.jar", "Library/pnpm/store/v3/f", ".npm/_cacache/index",
                               "Library/Caches/ms-playwright/chromium/f", ".cache/puppeteer/chrome/f"})
        tree.file(QStringLiteral("home/") + QString::fromUtf8(folder), 2'000'000);
    const auto rows = LocationScanner(CategoryID::packageCaches, KnownLocations::packageCaches())
                          .scan(context).at(CategoryID::packageCaches).items;
    QMap<QString, Safety> labels;
    for (const CleanupItem& row : rows)
        labels.insert(row.removal.paths().value(0).mid(context.home.size() + 1), row.safety(context.home));
    EXPECT_EQ(labels.value(QStringLiteral(".m2/repository"), Safety::safe), Safety::risky);
    EXPECT_EQ(labels.value(QStringLiteral("Library/pnpm/store"), Safety::safe), Safety::askAI);
    EXPECT_EQ(labels.value(QStringLiteral("Library/Caches/ms-playwright"), Safety::safe), Safety::askAI);
    EXPECT_EQ(labels.value(QStringLiteral(".cache/puppeteer"), Safety::safe), Safety::askAI);
    EXPECT_EQ(labels.value(QStringLiteral(".npm/_cacache"), Safety::risky), Safety::safe);
}

// Where a rule turns on a path's place, the boundary itself: a bundle against its contents, a
// folder against a name that only starts like it, a container's caches against Mail's.
TEST(CleanupItemSafety, PathRulesTurnExactlyAtTheirBoundaries)
{
    const PathCase cases[] = {
        {CategoryID::xcode, "/Applications/Xcode-15.app", Safety::askAI},
        {CategoryID::xcode, "/Applications/Xcode-15.app/Contents", Safety::safe},
        {CategoryID::xcode, "/Users/a/Library/Developer/Xcode/Archives/2024/App.xcarchive", Safety::risky},
        {CategoryID::android, "/Users/a/.gradle/jdks/jdk-17", Safety::askAI},
        {CategoryID::android, "/Users/a/.gradle/caches", Safety::safe},
        {CategoryID::appCaches, "/Users/a/Library/Containers/com.apple.mail/Data/Library/Caches", Safety::askAI},
        // Mail Downloads leaves the container rule and is judged by its last component.
        {CategoryID::appCaches, "/Users/a/Library/Containers/com.apple.mail/Data/Library/Mail Downloads", Safety::safe},
        {CategoryID::devices, "/Users/a/Library/Application Support/MobileSync/Backup/0000-1111", Safety::risky},
        {CategoryID::temporary, "/Users/a/tmp/old-build", Safety::askAI},
        {CategoryID::temporary, "/Users/ab/tmp/old-build", Safety::safe},
    };
    for (const PathCase& c : cases)
        EXPECT_EQ(item(c.category, QString::fromUtf8(c.path)).safety(home), c.expected) << c.path;
}

// Some categories always show their own label; others take the scanner's verdict, with a
// default of their own without one; rows of tools, runtimes and leftovers by what they hold.
TEST(CleanupItemSafety, EachCategoryFixesItsLabelOrTakesTheScannersVerdict)
{
    CleanupItem leftover = item(CategoryID::leftovers, "/Users/a/Library/Application Support/com.x.app");
    CleanupItem withData = leftover;
    withData.userData = {"/Users/a/Library/Application Support/com.x.app/Documents"};
    CleanupItem runtime = item(CategoryID::simulators, {}, Safety::safe);
    runtime.removal = {Removal::SimulatorRuntime{"com.apple.runtime.17"}};
    CleanupItem device = item(CategoryID::simulators, {}, Safety::safe);
    device.removal = {Removal::SimulatorDevice{"UDID", std::nullopt}};
    CleanupItem unjudgedDevice = device;
    unjudgedDevice.safetyLevel.reset();
    const std::vector<std::pair<CleanupItem, Safety>> cases = {
        {item(CategoryID::aiModels, "/Users/a/f", Safety::safe), Safety::askAI},
        {item(CategoryID::installers, "/Users/a/f", Safety::safe), Safety::askAI},
        {item(CategoryID::oldDownloads, "/Users/a/f", Safety::safe), Safety::askAI},
        {item(CategoryID::duplicates, "/Users/a/f", Safety::safe), Safety::askAI},
        {item(CategoryID::apps, "/Users/a/f", Safety::safe), Safety::risky},
        {item(CategoryID::largeFiles, "/Users/a/f", Safety::safe), Safety::risky},
        {item(CategoryID::trash, "/Users/a/f", Safety::safe), Safety::risky},
        {item(CategoryID::browserCaches, "/Users/a/x", Safety::risky), Safety::safe},
        {item(CategoryID::projects, "/p/node_modules"), Safety::safe},
        {item(CategoryID::worktrees, "/p/wt"), Safety::risky},
        {item(CategoryID::aiAgents, "/Users/a/.claude/x"), Safety::askAI},
        {item(CategoryID::projects, "/p/build", Safety::askAI), Safety::askAI},
        {item(CategoryID::worktrees, "/p/wt", Safety::askAI), Safety::askAI},
        {item(CategoryID::aiAgents, "/Users/a/.claude/x", Safety::safe), Safety::safe},
        {item(CategoryID::xcode, "/Users/a/Library/Developer/Xcode/Archives/a", Safety::askAI), Safety::askAI},
        {item(CategoryID::temporary, "/tmp/x", Safety::risky), Safety::risky},  // even outside the home folder
        {item(CategoryID::xcode), Safety::safe},
        {item(CategoryID::devices), Safety::safe},
        {item(CategoryID::temporary), Safety::safe},
        {item(CategoryID::packageCaches), Safety::safe},
        {leftover, Safety::safe},
        {withData, Safety::askAI},
        {dockerItem({DockerOperation::Volume{"db", "2024-01-01"}}), Safety::risky},
        {dockerItem({DockerOperation::BuildCache{}}), Safety::safe},
        {dockerItem({DockerOperation::Container{"abc"}}), Safety::askAI},
        {dockerItem({DockerOperation::Image{"sha256:1", {}, {}}}), Safety::askAI},
        {item(CategoryID::docker, "/Users/a/x"), Safety::askAI},
        {runtime, Safety::askAI},
        {device, Safety::safe},
        {unjudgedDevice, Safety::askAI},
    };
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(cases[i].first.safety(home), cases[i].second) << "case " << i << ": " << Categories::rawValue(cases[i].first.category).toStdString();
}

TEST(CleanupItem, MovingNeedsPathsNoLockAndNotAWorktree)
{
    EXPECT_TRUE(item(CategoryID::largeFiles, "/Users/a/big.mov").canMoveToAnotherDisk());
    EXPECT_FALSE(item(CategoryID::largeFiles).canMoveToAnotherDisk());
    CleanupItem locked = item(CategoryID::largeFiles, "/Users/a/big.mov");
    locked.lockedReason = QStringLiteral("Running.");
    EXPECT_FALSE(locked.canMoveToAnotherDisk());
    EXPECT_FALSE(item(CategoryID::worktrees, "/Users/a/wt").canMoveToAnotherDisk());
    EXPECT_FALSE(dockerItem({DockerOperation::BuildCache{}}).canMoveToAnotherDisk());
}

TEST(CleanupItem, EqualityAndHashCoverNestedFields)
{
    const auto expectDiffer = [](const CleanupItem& a, const CleanupItem& b) {
        EXPECT_NE(a, b);
        EXPECT_NE(qHash(a), qHash(b));
    };
    const CleanupItem a = item(CategoryID::projects, "/p/node_modules");
    CleanupItem b = a;
    EXPECT_EQ(qHash(a), qHash(b));
    FileTarget stamped = target("/p/node_modules");
    stamped.content = FileTarget::ContentStamp{1, 2, 3};
    b.removal = Removal::trash({stamped});
    expectDiffer(a, b);
    CleanupItem c = a;
    c.isOldestCopy = true;
    expectDiffer(a, c);
    expectDiffer(dockerItem({DockerOperation::Image{"i", {"c1"}, {}}}), dockerItem({DockerOperation::Image{"i", {"c2"}, {}}}));
}

TEST(Removal, PathsOnlyForTrashRemovals)
{
    EXPECT_EQ(Removal::trash({target("/a"), target("/b")}).paths(), QStringList({"/a", "/b"}));
    EXPECT_TRUE(Removal::docker({DockerOperation::BuildCache{}}).paths().isEmpty());
    EXPECT_FALSE(Removal::trash({}).isPermanent());
    EXPECT_TRUE(Removal{Removal::EmptyTrash{}}.isPermanent());
}

// A folder inside the project its row is titled after is named with the project's place; any
// other row, and a row that is the project itself or more than one folder, keeps its title.
TEST(ItemName, SaysWhichFolderOfTheProjectGoes)
{
    CleanupItem build = item(CategoryID::projects, home + "/Projects/app/android/build");
    build.title = QStringLiteral("app");
    build.projectPath = home + "/Projects/app";
    EXPECT_EQ(ItemName::of(build, home), QStringLiteral("build in ~/Projects/app/android"));
    EXPECT_EQ(ItemName::of(build, QStringLiteral("/home/b")), QStringLiteral("build in /Users/a/Projects/app/android"));

    CleanupItem whole = build;
    whole.removal = Removal::trash({target(home + "/Projects/app")});
    EXPECT_EQ(ItemName::of(whole, home), QStringLiteral("app"));
    CleanupItem worktree = build;
    worktree.removal = Removal::trash({target(home + "/Projects/app-fix"), target(home + "/Projects/app/.git/worktrees/fix")});
    EXPECT_EQ(ItemName::of(worktree, home), QStringLiteral("app"));
    CleanupItem sibling = build;
    sibling.removal = Removal::trash({target(home + "/Projects/app-old/build")});
    EXPECT_EQ(ItemName::of(sibling, home), QStringLiteral("app")) << "a path that only starts like the project";
    CleanupItem plain = item(CategoryID::oldDownloads, home + "/Downloads/setup.zip");
    plain.title = QStringLiteral("setup.zip");
    EXPECT_EQ(ItemName::of(plain, home), QStringLiteral("setup.zip"));
}
