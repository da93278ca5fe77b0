#pragma once

#include "ProjectScannerGit.h"
#include "scan/Walk.h"
#include "support/TempTree.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <ostream>

// Lets failing expectations print paths as text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// A fixture home folder ("home") in a temporary tree, a walk over chosen roots in it, and the
// walk's results as sorted paths relative to the tree, so expectations read like the tree.
class WalkFixture : public ::testing::Test {
protected:
    WalkFixture() { context.home = tree.dir("home"); }

    Walk walked(const QStringList& relativeRoots) const
    {
        Walk walk(context);
        for (const QString& root : relativeRoots)
            walk.run(tree.path(root));
        return walk;
    }

    QString relative(const QString& path) const
    {
        return path.startsWith(tree.root() + '/') ? path.mid(tree.root().size() + 1) : path;
    }

    template <typename Item, typename Path>
    QStringList relativePaths(const QList<Item>& items, Path pathOf) const
    {
        QStringList paths;
        for (const Item& item : items)
            paths.append(relative(pathOf(item)));
        paths.sort();
        return paths;
    }

    QStringList candidates(const Walk& walk) const
    {
        return relativePaths(walk.duplicateCandidates(), [](const DuplicateFinder::File& f) { return f.path; });
    }
    QStringList largeFiles(const Walk& walk) const
    {
        return relativePaths(walk.largeFiles(), [](const LargeFile& f) { return f.path; });
    }
    QStringList artifacts(const Walk& walk) const
    {
        return relativePaths(walk.artifacts(), [](const Artifact& a) { return a.path; });
    }
    QStringList mainRepositories(const Walk& walk) const
    {
        return relativePaths(walk.mainRepositories(), [](const QString& p) { return p; });
    }

    // Runs git in `relativeFolder` (created first); fails the test when git does.
    void git(const QString& relativeFolder, const QStringList& arguments) const
    {
        ProjectScannerGit::run(tree.dir(relativeFolder), arguments);
    }

    TempTree tree;
    ScanContext context;
};
