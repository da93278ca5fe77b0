#include "storage/FolderNode.h"

#include <algorithm>

void FolderNode::Makeup::add(const Makeup& other, qint64 sign)
{
    for (size_t i = 0; i < kindBytes.size(); ++i) {
        kindBytes[i] += sign * other.kindBytes[i];
        kindFiles[i] += sign * other.kindFiles[i];
    }
    smallBytes += sign * other.smallBytes;
    folderBytes += sign * other.folderBytes;
}

qsizetype FolderNode::nodeCount() const
{
    qsizetype count = 1;
    for (const FolderNode& child : children)
        count += child.nodeCount();
    return count;
}

const FolderNode* FolderNode::find(const QStringList& names) const
{
    const FolderNode* node = this;
    for (const QString& name : names) {
        const auto found = std::find_if(node->children.begin(), node->children.end(),
                                        [&name](const FolderNode& child) { return child.name == name; });
        if (found == node->children.end())
            return nullptr;
        node = &*found;
    }
    return node;
}

FolderNode* FolderNode::find(const QStringList& names)
{
    return const_cast<FolderNode*>(std::as_const(*this).find(names));
}

void FolderNode::sortChildren()
{
    std::sort(children.begin(), children.end(), [](const FolderNode& a, const FolderNode& b) {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.name < b.name;
    });
    for (FolderNode& child : children)
        child.sortChildren();
}

void FolderNode::foldAtOrBelow(qint64 floor)
{
    const auto small = std::stable_partition(children.begin(), children.end(),
                                      [floor](const FolderNode& child) { return child.bytes > floor; });
    for (auto child = small; child != children.end(); ++child)
        foldedBytes += child->bytes;
    children.erase(small, children.end());
    for (FolderNode& child : children)
        child.foldAtOrBelow(floor);
}
