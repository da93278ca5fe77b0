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
    CleanupItem twoPlaces = itemAt("/var/x");
    twoPlaces.removal = Removal::trash({*itemAt("/var/x").removal.as<Removal::Trash>()->targets.begin(),
                                        *itemAt("/tmp/y").removal.as<Removal::Trash>()->targets.begin()});
    EXPECT_TRUE(filter.drops(twoPlaces)) << "one protected path of the item is enough";

    CleanupItem inProject = itemAt("/Users/a/elsewhere/build");
    inProject.projectPath = "/Users/a/Projects/keep";
    EXPECT_TRUE(filter.drops(inProject));
}
