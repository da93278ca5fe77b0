#include "vocabulary/ScanFilter.h"

#include <gtest/gtest.h>

namespace {

CleanupItem itemAt(const QString& path, const QString& id = {})
{
    FileTarget target;
    target.path = path;
    CleanupItem item;
    item.id = id.isEmpty() ? path : id;
    item.category = CategoryID::appCaches;
    item.removal = Removal::trash({target});
    return item;
}

}  // namespace

TEST(ScanFilter, ICloudPlacesAndWordsAreNeverOffered)
{
    const ScanFilter filter("/Users/a", {}, {});
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Library/Caches/com.apple.cloudkit.foo")));
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Library/CloudStorage")));
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Library/Mobile Documents/com~apple~Notes")));
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Library/Application Support/FILEPROVIDER-x")));
    EXPECT_FALSE(filter.drops(itemAt("/Users/a/Documents/CloudKit")));
    EXPECT_FALSE(filter.drops(itemAt("/Users/a/Library/CloudStorageOld")));
    EXPECT_FALSE(filter.drops(itemAt("/Users/ab/Library/CloudStorage")));
}

TEST(ScanFilter, SafeListIdsAndProtectedPaths)
{
    const ScanFilter filter("/Users/a", {"docker:buildcache"}, {"/Users/a/Projects/keep", "/tmp"});
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/x", "docker:buildcache")));
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Projects/keep")));
    EXPECT_TRUE(filter.drops(itemAt("/Users/a/Projects/keep/node_modules")));
    EXPECT_FALSE(filter.drops(itemAt("/Users/a/Projects/keeper")));
    EXPECT_FALSE(filter.drops(itemAt("/tmpdir/x")));

    CleanupItem inProject = itemAt("/Users/a/elsewhere/build");
    inProject.projectPath = "/Users/a/Projects/keep";
    EXPECT_TRUE(filter.drops(inProject));
}

// A row the remover would refuse for its place is shown locked with the same sentence, never
// offered and then refused; a row locked for another reason keeps that reason.
TEST(ScanFilter, RowsWhereRemovalCannotReachAreShownLocked)
{
    const ScanFilter filter("/Users/a", {"/Users/a/safe"}, {});
    CleanupItem running = itemAt("/opt/tool/cache");
    running.lockedReason = QStringLiteral("Running. Quit Tool to remove it.");
    const QList<CleanupItem> shown = filter.shown({itemAt("/Users/a/Library/Caches/x"), itemAt("/private/tmp/old"),
                                                   itemAt("/Users/a/safe"), running},
                                                  {"/Users/a"});
    ASSERT_EQ(shown.size(), 3);
    EXPECT_FALSE(shown[0].lockedReason.has_value());
    EXPECT_EQ(shown[1].lockedReason, "It is outside your home folder.");
    EXPECT_EQ(shown[2].lockedReason, "Running. Quit Tool to remove it.");
}
