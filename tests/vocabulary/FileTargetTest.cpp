#include "support/TempTree.h"
#include "vocabulary/FileTarget.h"

#include <QFile>

#include <fcntl.h>
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

// The one identity rule: device, inode and, where the file system keeps one, birth time.
TEST(FileTarget, IsTheObjectOnlyWithTheSameDeviceInodeAndBirth)
{
    TempTree tree;
    const QString file = tree.file("a.txt", 10);
    const auto target = FileTarget::make(file);
    ASSERT_TRUE(target.has_value());
    const QByteArray path = QFile::encodeName(file);
    EXPECT_TRUE(target->isObjectAt(AT_FDCWD, path.constData()));

    FileTarget otherDevice = *target;
    otherDevice.device += 1;
    EXPECT_FALSE(otherDevice.isObjectAt(AT_FDCWD, path.constData()));
    if (target->birth) {
        FileTarget reborn = *target;  // the inode handed out again to a file made later
        reborn.birth = *target->birth - 1;
        EXPECT_FALSE(reborn.isObjectAt(AT_FDCWD, path.constData()));
    }

    const QString link = tree.symlink("link", file);  // a link is its own object, never followed
    EXPECT_FALSE(target->isObjectAt(AT_FDCWD, QFile::encodeName(link).constData()));
    const QString replacement = tree.file("a.new", 10);  // made while the first exists: another inode
    ASSERT_TRUE(QFile::remove(file));
    ASSERT_TRUE(QFile::rename(replacement, file));
    EXPECT_FALSE(target->isObjectAt(AT_FDCWD, path.constData()));
    EXPECT_FALSE(target->isObjectAt(AT_FDCWD, QFile::encodeName(tree.path("missing")).constData()));
}
