#include "scan/ProjectInfo.h"
#include "scan/WalkFixture.h"

namespace {

constexpr qint64 jan2020 = 1'577'836'800;
constexpr qint64 day = 86'400;

// Projects under "home/code", each given file times of its own so that a date taken from the
// wrong file shows. Files made without a time keep today's, newer than all of them.
class ShallowNewestTest : public WalkFixture {
protected:
    void oldFile(const QString& relative, qint64 seconds, const QByteArray& content = "x") const
    {
        tree.file(relative, content);
        tree.setTimes(relative, seconds);
    }

    void nodeProject(const QString& relative, qint64 seconds) const
    {
        oldFile(relative + "/package.json", seconds, "{}");
        tree.dir(relative + "/node_modules/left-pad");
    }

    // Sixteen more folders beside the projects, so that the split walk gives each project folder
    // below "code" to a piece of its own instead of sharing out its listing.
    void besideTheProjects() const
    {
        for (int i = 0; i < 16; ++i)
            oldFile(QStringLiteral("home/code/notes%1/readme.md").arg(i), jan2020);
    }

    // The dates the walk knew, each checked against the project walked alone.
    QStringList knownProjects(const Walk& walk) const
    {
        QStringList known;
        for (auto found = walk.projectDates().cbegin(); found != walk.projectDates().cend(); ++found) {
            const std::optional<QDateTime> alone = ProjectInfo::newestChange(found.key(), ProjectInfo::projectEntryLimit);
            const std::optional<QDateTime> taken = found.value() ? std::optional(ShallowNewest::dateOf(*found.value())) : std::nullopt;
            const auto text = [](const std::optional<QDateTime>& date) { return date ? date->toString(Qt::ISODate) : QStringLiteral("none"); };
            EXPECT_EQ(taken, alone) << qPrintable(relative(found.key()) + ": " + text(taken) + " against " + text(alone));
            known.append(relative(found.key()));
        }
        known.sort();
        return known;
    }
};

}  // namespace

TEST_F(ShallowNewestTest, TheWalkDatesProjectsAsTheirOwnWalksWould)
{
    // "web": nested project, build folders, hidden folders, links and newer files too deep to count.
    nodeProject("home/code/web", jan2020);
    oldFile("home/code/web/src/index.js", jan2020 + 5 * day);
    oldFile("home/code/web/src/lib/helpers.js", jan2020 + 7 * day);  // as deep as counts
    oldFile("home/code/web/src/lib/util/newest.js", jan2020 + 30 * day);
    oldFile("home/code/web/.cache/state", jan2020 + 31 * day);
    oldFile("home/code/web/node_modules/left-pad/index.js", jan2020 + 32 * day);
    oldFile("home/code/web/target/unproven/output.o", jan2020 + 33 * day);  // a build name, proven or not
    tree.symlink("home/code/web/src/latest", tree.path("home/code/web/src/index.js"));  // its own time is today
    tree.symlink("home/code/web/src/loop", "..");
    nodeProject("home/code/web/packages/ui", jan2020 + day);
    oldFile("home/code/web/packages/ui/src/button.js", jan2020 + 40 * day);  // four levels below web
    // "rust": a proven target, files only in the folder itself.
    oldFile("home/code/rust/Cargo.toml", jan2020 + 2 * day);
    oldFile("home/code/rust/target/debug/app", jan2020 + 50 * day);
    besideTheProjects();

    const Walk walk = walked({"home/code"});
    EXPECT_EQ(knownProjects(walk), (QStringList{"home/code/rust", "home/code/web", "home/code/web/packages/ui"}));
    EXPECT_EQ(walk.projectDates().value(tree.path("home/code/web")), std::optional((jan2020 + 7 * day) * 1'000'000'000));
    EXPECT_EQ(walk.projectDates().value(tree.path("home/code/web/packages/ui")), std::optional((jan2020 + 40 * day) * 1'000'000'000));
    EXPECT_EQ(walk.projectDates().value(tree.path("home/code/rust")), std::optional((jan2020 + 2 * day) * 1'000'000'000));
}

TEST_F(ShallowNewestTest, WhatTheWalkDidNotSeeWholeIsLeftToTheProjectsOwnWalk)
{
    // A package folder the walk does not enter, but the date's rule does.
    nodeProject("home/code/mac", jan2020);
    oldFile("home/code/mac/Tool.app/Contents/Info.plist", jan2020 + 9 * day);
    // More entries than the limit: where a walk of the project alone stops decides its date.
    nodeProject("home/code/big", jan2020);
    for (int i = 0; i < ProjectInfo::projectEntryLimit; ++i)
        oldFile(QStringLiteral("home/code/big/src/f%1.js").arg(i), jan2020 + (i % 97) * 60);
    // A project whose listing was shared out between pieces of the walk: the root itself.
    nodeProject("home/code", jan2020);
    oldFile("home/code/small/package.json", jan2020 + 3 * day, "{}");
    tree.dir("home/code/small/node_modules");
    besideTheProjects();

    const Walk walk = walked({"home/code"});
    EXPECT_EQ(artifacts(walk), (QStringList{"home/code/big/node_modules", "home/code/mac/node_modules",
                                            "home/code/node_modules", "home/code/small/node_modules"}));
    EXPECT_EQ(knownProjects(walk), QStringList{"home/code/small"});
    for (const QString project : {"home/code/mac", "home/code/big", "home/code"}) {
        const ProjectInfo taken = ProjectInfo::of(tree.path(project), context.home, nullptr, &walk.projectDates());
        EXPECT_EQ(taken.lastActivity, ProjectInfo::of(tree.path(project), context.home).lastActivity) << qPrintable(project);
    }
    EXPECT_EQ(ProjectInfo::of(tree.path("home/code/mac"), context.home, nullptr, &walk.projectDates()).lastActivity,
              std::optional(ShallowNewest::dateOf((jan2020 + 9 * day) * 1'000'000'000)));
}
