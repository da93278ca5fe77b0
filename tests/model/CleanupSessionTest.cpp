#include "model/CleanupSession.h"
#include "model/SelectionIndex.h"
#include "support/ModelFixture.h"

#include <gtest/gtest.h>

namespace {

CleanupItem imageRow(const QString& id, QStringList stoppedContainers)
{
    CleanupItem item;
    item.id = "docker:image:" + id;
    item.category = CategoryID::docker;
    item.title = id;
    item.size = 10;
    item.removal = Removal::docker({DockerOperation::Image{id, std::move(stoppedContainers), {}}});
    return item;
}

}  // namespace

TEST(CleanupSession, ConfirmationTextsNameWhatIsPermanentAndRisky)
{
    QList<CleanupItem> items = {rowAt(CategoryID::largeFiles, "/Users/a/one.mov"),
                                rowAt(CategoryID::largeFiles, "/Users/a/two.mov"),
                                rowAt(CategoryID::largeFiles, "/Users/a/three.mov"),
                                rowAt(CategoryID::largeFiles, "/Users/a/four.mov"),
                                rowAt(CategoryID::logs, "/Users/a/Library/Logs/x"),
                                imageRow("postgres", {"c1", "c2"})};
    const CleanupSession session(items);
    EXPECT_EQ(session.permanentTitle(), "Remove 1 item for good?");
    EXPECT_EQ(session.riskyLine("/Users/a"),
              "4 selected items are marked Risky: one.mov, two.mov, three.mov. They may hold data that exists nowhere else.");
    EXPECT_EQ(session.permanentText(), "Docker and Xcode remove these themselves. This can't be undone. "
                                       "Docker also removes 2 stopped containers of the selected images.");
    EXPECT_EQ(session.trashItems().size(), 5);
    EXPECT_TRUE(CleanupSession({rowAt(CategoryID::logs, "/Users/a/l")}).riskyLine("/Users/a").isEmpty());
}

TEST(CleanupSession, RecordAddsUpEachKindAndNotesContainers)
{
    CleanupSession session({});
    session.record(rowAt(CategoryID::logs, "/a", 100), RemovalOutcome::movedToTrash());
    session.record(imageRow("no-containers", {}), RemovalOutcome::removedByTool());
    EXPECT_FALSE(session.removedContainers());
    session.record(imageRow("with", {"c"}), RemovalOutcome::removedByTool());
    session.record(rowAt(CategoryID::logs, "/b", 5), RemovalOutcome::failed("It changed since the scan. Scan again."));
    EXPECT_EQ(session.processed(), 4);
    EXPECT_EQ(session.movedToTrash(), 100);
    EXPECT_EQ(session.removedByTools(), 20);
    EXPECT_TRUE(session.removedContainers());
    EXPECT_EQ(session.removedCount(), 3);
    ASSERT_EQ(session.failures().size(), 1);
    EXPECT_EQ(session.failures().first().title, "b");
    EXPECT_FALSE(session.failures().first().id.isEmpty());
}

TEST(SelectionIndex, AnItemInsideASelectedFolderOrAtTheSamePathIsCovered)
{
    const QList<CleanupItem> selected = {
        rowAt(CategoryID::largeFiles, "/Users/a/p/node_modules/x/big.bin"),
        rowAt(CategoryID::projects, "/Users/a/p/node_modules"),
        rowAt(CategoryID::duplicates, "/Users/a/p/node_modules"),  // same path from another list
        rowAt(CategoryID::projects, "/Users/a/p/node_modules2"),
    };
    const SelectionIndex index(selected);
    EXPECT_EQ(index.covering(0), 1);
    EXPECT_FALSE(index.covering(1).has_value());
    EXPECT_EQ(index.covering(2), 1);
    EXPECT_FALSE(index.covering(3).has_value());  // a sibling with a longer name is not inside
}
