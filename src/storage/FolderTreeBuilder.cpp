#include "storage/FolderTreeBuilder.h"

#include "storage/FolderTally.h"

#include <algorithm>

namespace {

void collectBytes(const std::vector<FolderNode>& nodes, std::vector<qint64>& into)
{
    for (const FolderNode& node : nodes) {
        into.push_back(node.bytes);
        collectBytes(node.children, into);
    }
}

}  // namespace

FolderTreeBuilder::FolderTreeBuilder(qsizetype nodesKept) : m_nodesKept(std::max<qsizetype>(nodesKept, 1)), m_levels(1)
{
}

void FolderTreeBuilder::enterFolder()
{
    m_levels.emplace_back();
}

void FolderTreeBuilder::leaveFolder(FolderNode node)
{
    Level level = std::move(m_levels.back());
    m_levels.pop_back();
    node.children = std::move(level.children);
    node.foldedBytes = level.foldedBytes;
    Level& parent = m_levels.back();
    if (m_levels.size() == 1) {  // the root: the top holds it whole, kept or folded
        m_top.bytes += node.bytes;
        m_top.fileCount += node.fileCount;
        m_top.kind = node.kind;
        m_top.makeup.add(node.makeup);
    }
    const auto depth = static_cast<qsizetype>(m_levels.size()) - 1;  // 0 for the root
    if (depth > deepestLevel) {  // nothing below it was kept either
        parent.foldedBytes += node.bytes;
        return;
    }
    if (node.bytes <= m_floor) {
        parent.foldedBytes += node.bytes;
        m_held -= node.nodeCount() - 1;
        return;
    }
    parent.children.push_back(std::move(node));
    hold(1);
}

void FolderTreeBuilder::hold(qsizetype nodes)
{
    m_held += nodes;
    if (m_held >= 2 * m_nodesKept)
        fold();
}

FolderTreeBuilder::Level FolderTreeBuilder::leaveShared()
{
    Level level = std::move(m_levels.back());
    m_levels.pop_back();
    for (const FolderNode& child : level.children)
        m_held -= child.nodeCount();
    return level;
}

void FolderTreeBuilder::addToCurrent(Level share)
{
    hold(addTo(m_levels.back(), std::move(share)));
}

// Either builder's floor is safe for both: a floor is only raised past folders that at least
// `nodesKept` larger ones of the same walk outrank.
void FolderTreeBuilder::append(FolderTreeBuilder&& later, size_t shared)
{
    m_floor = std::max(m_floor, later.m_floor);
    qsizetype nodes = 0;
    for (size_t index = 1; index < later.m_levels.size(); ++index) {
        if (index > shared)
            m_levels.emplace_back();
        nodes += addTo(m_levels.at(index), std::move(later.m_levels[index]));
    }
    hold(nodes);
}

qsizetype FolderTreeBuilder::addTo(Level& level, Level share)
{
    level.foldedBytes += share.foldedBytes;
    qsizetype nodes = 0;
    for (FolderNode& child : share.children) {
        nodes += child.nodeCount();
        level.children.push_back(std::move(child));
    }
    return nodes;
}

void FolderTreeBuilder::addRootFile(StorageBucket bucket, qint64 bytes)
{
    m_top.bytes += bytes;
    m_top.ownBytes += bytes;
    ++m_top.fileCount;
    m_top.makeup.kindBytes.at(static_cast<size_t>(bucket)) += bytes;
    ++m_top.makeup.kindFiles.at(static_cast<size_t>(bucket));
    if (FolderTally::isSmall(bytes))
        m_top.makeup.smallBytes += bytes;
}

FolderNode FolderTreeBuilder::finish() &&
{
    m_levels.resize(1);
    if (m_held > m_nodesKept)  // a finished walk waits for the others with no more than it may keep
        fold();
    m_top.children = std::move(m_levels.front().children);
    m_top.foldedBytes = m_levels.front().foldedBytes;
    return std::move(m_top);
}

// Raises the floor to the size of the largest folder that must go and folds everything at or
// below it, in the finished folders of every open level.
void FolderTreeBuilder::fold()
{
    std::vector<qint64> sizes;
    sizes.reserve(static_cast<size_t>(m_held));
    for (const Level& level : m_levels)
        collectBytes(level.children, sizes);
    const auto cut = sizes.begin() + (m_nodesKept - 1);
    std::nth_element(sizes.begin(), cut, sizes.end(), std::greater<>());
    m_floor = std::max(m_floor, *cut);
    m_held = 0;
    for (Level& level : m_levels) {
        FolderNode holder;
        holder.children = std::move(level.children);
        holder.foldAtOrBelow(m_floor);
        level.children = std::move(holder.children);
        level.foldedBytes += holder.foldedBytes;
        for (const FolderNode& child : level.children)
            m_held += child.nodeCount();
    }
}
