#include "actions/SecurePath.h"
#include "support/TempTree.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

// What a look at a path says when a folder above the entry is renamed away (or was never
// there), is a file, or is a link: a folder renamed for a moment changed the path, it did not
// become unreadable.
TEST(SecurePath, AFolderAboveThatIsGoneReadsAsChangedNotUnreadable)
{
    TempTree tree;
    const QString file = tree.file("home/Documents/report.pdf", 10);
    tree.file("home/notes", 10);
    tree.symlink("home/linked", tree.path("home/Documents"));

    const SecurePath::Finding found = SecurePath::examine(file);
    ASSERT_EQ(found.verdict, SecurePath::Verdict::ok);
    struct stat info {};
    ASSERT_EQ(::lstat(QFile::encodeName(file).constData(), &info), 0);
    EXPECT_EQ(found.inode, quint64(info.st_ino));

    const struct {
        const char* path;
        SecurePath::Verdict verdict;
    } cases[] = {
        {"home/Documents/gone.pdf", SecurePath::Verdict::missing},
        {"home/Renamed/report.pdf", SecurePath::Verdict::changed},
        {"home/Renamed/deeper/report.pdf", SecurePath::Verdict::changed},
        {"home/notes/report.pdf", SecurePath::Verdict::changed},
        {"home/linked/report.pdf", SecurePath::Verdict::throughSymbolicLink},
    };
    for (const auto& each : cases)
        EXPECT_EQ(SecurePath::examine(tree.path(each.path)).verdict, each.verdict) << each.path;
    EXPECT_EQ(SecurePath::openParent(tree.path("home/Renamed/report.pdf")).verdict, SecurePath::Verdict::changed);
}
