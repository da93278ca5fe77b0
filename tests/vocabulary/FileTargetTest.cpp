#include "support/TempTree.h"
#include "vocabulary/FileTarget.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(FileTarget, TakesIdentityFromLstatWithEveryGuardOff)
{
    TempTree tree;
    const QString file = tree.file("a.txt", 10);
    const QString link = tree.symlink("link", file);
    struct stat linkInfo {};
    ASSERT_EQ(::lstat(QFile::encodeName(link).constData(), &linkInfo), 0);

    const auto target = FileTarget::make(link);
    ASSERT_TRUE(target.has_value());
    EXPECT_EQ(target->inode, static_cast<quint64>(linkInfo.st_ino));  // the link, not its target
    EXPECT_FALSE(target->content || target->tree || target->gitLockFile);
    EXPECT_FALSE(target->quietForADay || target->projectQuietForADay);
    EXPECT_TRUE(target->usedWhileRunning.isEmpty());

    EXPECT_FALSE(FileTarget::make(tree.path("missing")).has_value());
    const auto watched = FileTarget::watching(file, {"Slack"});
    ASSERT_TRUE(watched.has_value());
    EXPECT_EQ(watched->usedWhileRunning, QStringList{"Slack"});
}
