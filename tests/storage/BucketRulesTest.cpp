// The classification rules where a result turns on where a folder stands or on which system's
// rows apply; the plain name and extension lists are exercised by the walks.
#include "storage/BucketRules.h"

#include <gtest/gtest.h>

namespace {

const QByteArray home = "/Users/a";

std::optional<StorageBucket> forced(const BucketRules& rules, const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return rules.forcedBucket(path, path.mid(slash + 1), path.left(slash));
}

}  // namespace

TEST(BucketRules, HomeAndLibraryNamesCountOnlyWhereTheyStand)
{
    const BucketRules rules(home, Platform::Desktop::finder);
    EXPECT_EQ(forced(rules, home + "/.Trash"), StorageBucket::trash);
    EXPECT_EQ(forced(rules, home + "/code/.Trash"), std::nullopt);
    EXPECT_EQ(forced(rules, home + "/.cargo"), StorageBucket::developer);
    EXPECT_EQ(forced(rules, home + "/Library/Caches"), StorageBucket::appData);
    EXPECT_EQ(forced(rules, home + "/Documents/Caches"), std::nullopt);
    EXPECT_EQ(forced(rules, home + "/Library/Mail"), StorageBucket::mail);
    EXPECT_EQ(forced(rules, home + "/Library/Containers/com.apple.mail"), StorageBucket::mail);
    EXPECT_EQ(forced(rules, home + "/Library/Containers/com.apple.notes"), std::nullopt);
    EXPECT_EQ(forced(rules, home + "/Library/Application Support/MobileSync"), StorageBucket::deviceBackups);
}

TEST(BucketRules, DeveloperNamesMatchExactlyAnywherePackagesByLowerCasedSuffix)
{
    const BucketRules rules(home, Platform::Desktop::finder);
    EXPECT_EQ(forced(rules, home + "/code/shop/node_modules"), StorageBucket::developer);
    EXPECT_EQ(forced(rules, home + "/code/Node_Modules"), std::nullopt);
    EXPECT_EQ(forced(rules, home + "/Pictures/Old.PhotosLibrary"), StorageBucket::photos);
    EXPECT_EQ(forced(rules, home + "/Movies/Trip.fcpbundle"), StorageBucket::videos);
    EXPECT_EQ(forced(rules, home + "/Music/TV.tvlibrary"), StorageBucket::music);
    EXPECT_EQ(forced(rules, "/Applications/Safari.APP"), StorageBucket::apps);
    EXPECT_TRUE(BucketRules::isPackage("Backup.sparsebundle"));
    EXPECT_FALSE(BucketRules::isPackage("node_modules"));
}

TEST(BucketRules, LinuxRowsStandBesideTheMacRows)
{
    const BucketRules mac(home, Platform::Desktop::finder);
    const BucketRules linux(home, Platform::Desktop::freedesktop);
    EXPECT_EQ(forced(mac, home + "/.cache"), StorageBucket::developer);
    EXPECT_EQ(forced(linux, home + "/.cache"), StorageBucket::appData);
    EXPECT_EQ(forced(linux, home + "/.config"), StorageBucket::appData);
    EXPECT_EQ(forced(linux, home + "/.cargo"), StorageBucket::developer);
    EXPECT_EQ(forced(linux, home + "/.local/share"), StorageBucket::appData);
    EXPECT_EQ(linux.pathBucket(home + "/.local/share/Trash"), StorageBucket::trash);
    EXPECT_EQ(forced(linux, home + "/.var/app"), StorageBucket::appData);
    EXPECT_EQ(forced(mac, home + "/.local/share"), std::nullopt);
    EXPECT_EQ(forced(linux, home + "/Library/Caches"), StorageBucket::appData) << "the Mac rows still apply";
}

TEST(BucketRules, FileBucketByLowerCasedLastExtension)
{
    EXPECT_EQ(BucketRules::bucket("IMG_0001.JPG"), StorageBucket::photos);
    EXPECT_EQ(BucketRules::bucket("backup.tar.gz"), StorageBucket::archives);
    EXPECT_EQ(BucketRules::bucket("notes.md"), StorageBucket::documents);
    EXPECT_EQ(BucketRules::bucket("song.flac"), StorageBucket::music);
    EXPECT_EQ(BucketRules::bucket("clip.m2ts"), StorageBucket::videos);
    EXPECT_EQ(BucketRules::bucket(".zshrc"), StorageBucket::other);
    EXPECT_EQ(BucketRules::bucket("Makefile"), StorageBucket::other);
    EXPECT_EQ(BucketRules::bucket("archive."), StorageBucket::other);
    EXPECT_EQ(BucketRules::bucket("x.averyveryverylongextension"), StorageBucket::other);
}
