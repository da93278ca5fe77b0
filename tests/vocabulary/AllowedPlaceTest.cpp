#include "support/TempTree.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/RemovalReasons.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

CleanupItem rowAt(const QString& path)
{
    CleanupItem item;
    item.id = path;
    FileTarget target;
    target.path = path;
    item.removal = Removal::trash({target});
    return item;
}

// Rows the remover would refuse for their place are shown locked rather than offered: a scan
// folder beside the home on its own disk gets no exception, one on another disk does.
TEST(AllowedPlace, RowsOutsideTheHomeOnItsOwnDiskAreShownLocked)
{
    TempTree home;
    TempTree besideHome;
    QTemporaryDir otherDisk(QStringLiteral("/dev/shm/dustlark-XXXXXX"));
    ASSERT_TRUE(otherDisk.isValid());
    CleanupItem alreadyLocked = rowAt(besideHome.path(QStringLiteral("b")));
    alreadyLocked.lockedReason = QStringLiteral("Running. Quit Xcode to remove it.");
    CleanupItem toolRow;
    toolRow.id = QStringLiteral("docker:buildcache");
    toolRow.removal = Removal{Removal::Docker{}};

    const QList<CleanupItem> shown = AllowedPlace::lockedOutside(
        {rowAt(home.path(QStringLiteral("a"))), rowAt(besideHome.path(QStringLiteral("a"))),
         rowAt(otherDisk.filePath(QStringLiteral("a"))), alreadyLocked, toolRow},
        home.root(), {besideHome.root(), otherDisk.path()});

    ASSERT_EQ(shown.size(), 5);
    EXPECT_EQ(shown[0].lockedReason, std::nullopt);
    EXPECT_EQ(shown[1].lockedReason, RemovalReasons::outsideHome());
    EXPECT_EQ(shown[2].lockedReason, std::nullopt);
    EXPECT_EQ(shown[3].lockedReason, alreadyLocked.lockedReason);
    EXPECT_EQ(shown[4].lockedReason, std::nullopt);
}

}  // namespace
