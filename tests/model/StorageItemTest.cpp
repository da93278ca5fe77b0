// A storage row as the item a cleanup or a move takes: what it records of the object, and every
// place removal must not reach locked with its sentence.
#include "model/StorageItem.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

class StorageItemTest : public ::testing::Test {
protected:
    CleanupItem itemAt(const QString& path, const QStringList& safe = {}) const
    {
        return StorageItem::make(path, 4'096, ScanFilter(home.root(), {}, safe), home.root(), {});
    }

    TempTree home;
};

}  // namespace

TEST_F(StorageItemTest, RecordsTheObjectAsItStandsNow)
{
    const QString file = home.file("Projects/old/a.bin", 10);
    const CleanupItem item = itemAt(file);
    EXPECT_FALSE(item.lockedReason);
    EXPECT_EQ(item.title, "a.bin in ~/Projects/old");
    EXPECT_EQ(item.size, 4'096) << "the size the analysis measured";
    EXPECT_EQ(item.safety(home.root()), Safety::risky);
    const auto* trash = item.removal.as<Removal::Trash>();
    ASSERT_TRUE(trash && trash->targets.size() == 1);
    EXPECT_TRUE(trash->targets.first().content) << "a file rewritten after the menu is not the one chosen";
    EXPECT_FALSE(itemAt(home.path("Projects")).removal.as<Removal::Trash>()->targets.first().content);
}

TEST_F(StorageItemTest, LocksWhatRemovalMustNotTouch)
{
    home.file("Documents/keep/taxes.pdf", 10);
    home.file("Elsewhere/b.txt", 10);
    home.symlink("Link", home.path("Elsewhere"));
    const QStringList safe{home.path("Documents/keep")};
    const TempTree outside;
    const std::pair<QString, QString> cases[] = {
        {home.root(), "It is outside your home folder."},
        {home.path("Documents/../Elsewhere"), "It is outside your home folder."},
        {outside.root(), "It is outside your home folder."},
        {home.path("Link"), "It is a symbolic link."},
        {home.path("Gone"), "It no longer exists."},
        {home.path("Documents"), "Something inside it is on the Safe List."},
        {home.path("Documents/keep"), "It is on the Safe List."},
        {home.path("Documents/keep/taxes.pdf"), "It is on the Safe List."},
    };
    for (const auto& [path, reason] : cases) {
        const CleanupItem item = itemAt(path, safe);
        EXPECT_EQ(item.lockedReason.value_or("offered"), reason) << qPrintable(path);
        EXPECT_FALSE(item.canMoveToAnotherDisk()) << qPrintable(path);
    }
    home.dir("Documents/keeper");
    EXPECT_FALSE(itemAt(home.path("Documents/keeper"), {home.path("Documents/kee")}).lockedReason) << "names, not prefixes";
}

TEST_F(StorageItemTest, LocksTheTrashAndWhatHoldsIt)
{
    // The tests' own freedesktop trash, seen from a home that holds their data folder.
    const QString data = QFile::decodeName(qgetenv("XDG_DATA_HOME"));
    const QString trash = data + "/Trash/files";
    ASSERT_TRUE(QDir().mkpath(trash + "/old"));
    const QString above = QFileInfo(data).path();
    const ScanFilter none(above, {}, {});
    EXPECT_EQ(StorageItem::make(trash, 1, none, above, {}).lockedReason.value_or("offered"), "The Trash is emptied with Empty Trash.");
    EXPECT_EQ(StorageItem::make(trash + "/old", 1, none, above, {}).lockedReason.value_or("offered"), "The Trash is emptied with Empty Trash.");
    EXPECT_EQ(StorageItem::make(data, 1, none, above, {}).lockedReason.value_or("offered"), "The Trash is inside it.");
}
