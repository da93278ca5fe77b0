#include "scan/ProjectScanner.h"

#include "support/TempTree.h"

#include <gtest/gtest.h>

TEST(ProjectScannerRoots, ExpandsCleansSortsAndDropsNestedAndMissingFolders)
{
    TempTree tree;
    const QString home = tree.dir("home");
    for (const char* folder : {"home/code", "home/code/app", "home/code app", "home/codex", "other"})
        tree.dir(folder);
    tree.file("home/notes.txt");

    const QStringList roots = ProjectScanner::distinctRoots(
        {
            "~/code/app",
            tree.path("home//code/./lib/.."),
            tree.path("other/"),
            "~/codex",
            "~/code app",
            "~/code",
            "~/missing",
            "~/notes.txt",
            tree.path("other"),
        },
        home);
    EXPECT_EQ(roots, QStringList({home + "/code", home + "/code app", home + "/codex", tree.path("other")}));
}

TEST(ProjectScannerRoots, TildeAloneIsTheHomeFolderAndSwallowsEverythingInIt)
{
    TempTree tree;
    const QString home = tree.dir("home");
    tree.dir("home/Projects");
    EXPECT_EQ(ProjectScanner::distinctRoots({"~/Projects", "~"}, home), QStringList({home}));
}
