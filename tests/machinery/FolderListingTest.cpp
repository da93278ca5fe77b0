#include "machinery/Descriptor.h"
#include "machinery/FolderListing.h"
#include "support/TempTree.h"

#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

TEST(FolderListing, ListsEveryNameAsBytesWithoutTouchingTheCallersDescriptor)
{
    TempTree tree;
    tree.file("folder/plain", 1);
    tree.file("folder/.hidden", 1);
    tree.dir("folder/sub");
    tree.symlink("folder/link", tree.path("nowhere"));
    const QByteArray latin1 = QFile::encodeName(tree.path("folder")) + "/caf\xe9";  // not UTF-8
    const int made = ::open(latin1.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    ASSERT_GE(made, 0);
    ::close(made);
    const Descriptor folder(::open(QFile::encodeName(tree.path("folder")).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_TRUE(folder.isValid());

    for (int round = 0; round < 2; ++round) {  // the same answer twice: the caller's position stays
        std::optional<QByteArrayList> names = FolderListing::names(folder.get());
        ASSERT_TRUE(names.has_value());
        std::sort(names->begin(), names->end());
        EXPECT_EQ(*names, (QByteArrayList{".hidden", QByteArray("caf\xe9"), "link", "plain", "sub"}));
    }

    const Descriptor empty(::open(QFile::encodeName(tree.dir("empty")).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    EXPECT_EQ(FolderListing::names(empty.get()), QByteArrayList());
    const Descriptor file(::open(QFile::encodeName(tree.path("folder/plain")).constData(), O_RDONLY | O_CLOEXEC));
    EXPECT_FALSE(FolderListing::names(file.get()).has_value()) << "a file is no folder to list";
}
