#pragma once

#include "machinery/TreeWalker.h"

#include <memory>

// A visitor whose work can be cut into pieces, walked on separate threads and put back
// together in walk order. What it finds must depend only on the entries and on the folders
// above them, never on what an earlier sibling subtree held.
class SplittableVisitor : public TreeVisitor {
public:
    // A visitor for a later piece of the walk: it decides as this one would at this point (same
    // settings, same enclosing folders) and has found nothing yet.
    [[nodiscard]] virtual std::unique_ptr<SplittableVisitor> fork() const = 0;
    // Adds what `later` found after what this one found, as if one visitor had met both in turn.
    // Called in walk order, possibly while later pieces are still being walked on other threads.
    virtual void join(SplittableVisitor& later) = 0;
};

// One tree walked on up to `threads` threads with the outcome of a single TreeWalker walk: the
// same callbacks with the same entries, paths and depths, and, once the pieces are joined in
// order, the same findings. The first levels are listed on the calling thread until there are
// enough subtrees to share out; the subtrees then go to whichever thread is free. A second
// thread starts only once the walk has met `splitAfter` entries, so the many small trees a
// scan measures never pay for one. A piece is joined as soon as every piece before it is, on
// whichever thread walked the last of them, and then let go.
//
// Differences from one walk, none of which the splittable users depend on:
// - callbacks of different subtrees interleave in time (each piece's own are in order);
// - a folder whose listing was shared out gets its leaveFolder before its subtrees are walked,
//   though in the piece that comes after them;
// - a Stop verdict ends the walk as soon as the threads notice, and pieces already walked are
//   joined even when they lie after the one that stopped. Walks that stop on a count (a bounded
//   walk) use TreeWalker itself.
// Hard links are reported once over the whole tree when `hardLinksOnce` is set.
class SplitWalk {
public:
    struct Options {
        TreeWalker::Options walker;
        int threads = 2;             // measured on two cores: the second thread pays there
        qint64 splitAfter = 20000;   // entries met before a second thread is worth its start
        int subtrees = 16;           // how many subtrees the listing aims for before sharing
        int listedLevels = 3;        // and how deep it lists at most to find them
    };

    explicit SplitWalk(Options options);

    // Walks `root` as TreeWalker::walk would, with `visitor` as the first piece; every later
    // piece is a fork of it and is joined into it before this returns.
    TreeWalker::Result walk(const QByteArray& root, SplittableVisitor& visitor);

private:
    struct Piece;
    class Lister;
    class Pool;

    Options m_options;
};
