#pragma once

#include "storage/FolderNode.h"

#include <vector>

// Builds the folder tree of one walk, bottom-up as folders are left. Memory stays bounded: once
// twice `nodesKept` folders are held, the smallest are folded into their parents until fewer
// than `nodesKept` remain, and from then on a folder no larger than the last one folded is
// folded as it is left; the finished tree holds fewer than `nodesKept`. Folders more than
// `deepestLevel` levels below the walk's root are folded into their ancestor at that level, so
// everything that follows the tree down (drawing, JSON, folding) stays within a small stack
// however deep the folders nest. Not thread-safe; one walk owns it.
class FolderTreeBuilder {
public:
    static constexpr qsizetype deepestLevel = 100;

    // What one open folder holds so far: its finished sub-folders, and the bytes folded from them.
    struct Level {
        std::vector<FolderNode> children;
        qint64 foldedBytes = 0;
    };

    explicit FolderTreeBuilder(qsizetype nodesKept);

    void enterFolder();
    // `node` is the folder just left, without children: it gets those kept since it was entered.
    void leaveFolder(FolderNode node);
    // The walk's root is a file: it belongs to the folder that holds the root.
    void addRootFile(StorageBucket bucket, qint64 bytes);
    // The folder that holds the walk's root, with the root as its one child (or the root file
    // in its own bytes). Folders still open (a stopped walk) are left out.
    [[nodiscard]] FolderNode finish() &&;

    // A walk split into pieces gives each piece a builder that starts with the folders open
    // where the piece begins; a later piece's share of a folder is added to the earlier one's.
    // Takes the current folder out unfinished (a piece leaves a folder an earlier one entered).
    [[nodiscard]] Level leaveShared();
    // Adds a later piece's share of the current folder.
    void addToCurrent(Level share);
    // Adds what a later piece still holds: its first `shared` open folders are this builder's
    // open folders, the rest are opened here.
    void append(FolderTreeBuilder&& later, size_t shared);

private:
    void hold(qsizetype nodes);
    static qsizetype addTo(Level& level, Level share);
    void fold();

    qsizetype m_nodesKept;
    qsizetype m_held = 0;
    qint64 m_floor = -1;  // a folder of at most these bytes is folded
    std::vector<Level> m_levels;  // the first one holds the root
    FolderNode m_top;
};
