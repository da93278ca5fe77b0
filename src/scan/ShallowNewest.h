#pragma once

#include "machinery/TreeWalker.h"

#include <QDateTime>
#include <QHash>
#include <QString>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

// The newest file of a project's shallow part: files in the project folder and in two levels of
// folders below it, entering no folder whose name starts with "." and no build folder, giving up
// past an entry limit. The rule lives here; a walk of the project alone (ProjectInfo::newestChange)
// and the projects walk, which takes it for every project as it passes, both apply it.
//
// As a tally, one object follows one piece of a walk: each folder keeps the newest file and the
// entries of its own listing and of the one and two levels the rule enters below it, and hands
// them to its parent when it is left, so no folder is looked at twice. A date is known only where
// the walk looked at every entry the rule would (a folder the walk did not enter, one it could not
// read, or one split between pieces of the walk leaves its project unknown) and the shallow part
// held no more entries than the limit, so that where the walk alone would have stopped cannot
// matter. A project left unknown is walked on its own. Not thread-safe; forks for other threads.
class ShallowNewest {
public:
    // Entered levels below the project folder: files down to three levels count.
    static constexpr int deepestEnteredLevel = 2;

    // Whether the shallow walk enters a folder named `name` at `depth` below the project (0: the
    // project itself).
    [[nodiscard]] static bool enters(std::string_view name, int depth);
    // A modification time in nanoseconds since 1970 as the date a project shows (to the millisecond).
    [[nodiscard]] static QDateTime dateOf(qint64 nanoseconds);

    // Project folder to its newest file's time in nanoseconds (absent: no file), for each project
    // whose date is known.
    using Known = QHash<QString, std::optional<qint64>>;

    explicit ShallowNewest(qint64 limit) : m_limit(limit) {}

    // A tally for a later piece of the walk, begun where this one stands, with nothing known yet.
    [[nodiscard]] ShallowNewest forked() const;

    // The walk's events, with the entry's depth in the whole walk.
    void entered(const TreeEntry& folder);
    void passedOver(const TreeEntry& folder);  // a folder met but not entered
    void visited(const TreeEntry& item);
    void left(const TreeEntry& folder);
    void problem(const TreeEntry& entry);
    // The folder holding `entry` is a project: its date is kept when it is left.
    void markProjectHolding(const TreeEntry& entry);

    [[nodiscard]] const Known& known() const { return m_known; }
    void append(ShallowNewest&& later);

private:
    struct Level {
        qint64 entries = 0;
        std::optional<qint64> newest;
        bool complete = true;

        void add(const Level& other);
    };
    struct Frame {
        std::array<Level, deepestEnteredLevel + 1> levels;  // [k]: the listing and k entered levels below
        bool entered = false;  // the rule enters it below a project
        bool shared = false;   // copied from an earlier piece: its tally there is not all of it
        bool project = false;
    };

    void settle(size_t open);
    void countInParent(const TreeEntry& entry);

    qint64 m_limit;
    std::vector<Frame> m_frames;  // by depth
    bool m_started = false;
    Known m_known;
};
