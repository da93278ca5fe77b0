#include "storage/HomeTree.h"

#include "storage/FolderTally.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace HomeTree {

namespace {

// Takes a file counted elsewhere out of the folder where this walk counted it and out of every
// folder above it; a folder folded since is reached through the kept folder that holds it.
void takeOut(FolderNode& top, const QByteArray& folder, const StoragePartial::LinkedFile& file)
{
    const qint64 bytes = file.bytes;
    const auto kind = static_cast<size_t>(file.bucket);
    const QStringList names = folder.isEmpty() ? QStringList() : QFile::decodeName(folder).split(QLatin1Char('/'));
    FolderNode* node = &top;
    qsizetype depth = 0;
    for (;; ++depth) {
        node->bytes -= bytes;
        --node->fileCount;
        node->makeup.kindBytes.at(kind) -= bytes;
        --node->makeup.kindFiles.at(kind);
        if (FolderTally::isSmall(bytes))
            node->makeup.smallBytes -= bytes;
        if (depth == names.size())
            break;
        const QString& name = names.at(depth);
        const auto child = std::find_if(node->children.begin(), node->children.end(),
                                        [&name](const FolderNode& each) { return each.name == name; });
        if (child == node->children.end())
            break;
        node = &*child;
    }
    (depth == names.size() ? node->ownBytes : node->foldedBytes) -= bytes;
}

void absorb(FolderNode& into, FolderNode&& top)
{
    into.bytes += top.bytes;
    into.fileCount += top.fileCount;
    into.ownBytes += top.ownBytes;
    into.foldedBytes += top.foldedBytes;
    into.makeup.add(top.makeup);
    for (FolderNode& child : top.children)
        into.children.push_back(std::move(child));
}

}  // namespace

void settleKind(FolderNode& node)
{
    std::array<qint64, StorageBuckets::count> byKind{};
    for (const FolderNode& child : node.children)
        byKind.at(static_cast<size_t>(child.kind)) += child.bytes;
    const auto largest = std::max_element(byKind.begin(), byKind.end());
    node.kind = *largest > 0 ? StorageBuckets::allCases().at(static_cast<size_t>(largest - byKind.begin()))
                             : StorageBucket::other;
}

namespace {

void collectBytes(const FolderNode& node, std::vector<qint64>& into)
{
    for (const FolderNode& child : node.children) {
        into.push_back(child.bytes);
        collectBytes(child, into);
    }
}

}  // namespace

FolderNode assemble(const QByteArray& home, const std::vector<QByteArray>& roots, std::vector<StoragePartial>& partials,
                    qsizetype limit)
{
    const QByteArray library = home + "/Library";
    FolderNode homeNode{QFile::decodeName(home.mid(home.lastIndexOf('/') + 1)), 0, 0, 0, 0, StorageBucket::other, {}};
    FolderNode libraryNode{QStringLiteral("Library"), 0, 0, 0, 0, StorageBucket::appData, {}};
    bool anyLibrary = false;
    QSet<FileKey> counted;
    for (size_t i = 0; i < partials.size() && i < roots.size(); ++i) {
        StoragePartial& partial = partials[i];
        for (auto link = partial.links.cbegin(); link != partial.links.cend(); ++link) {
            if (counted.contains(link.key()) && link->folder >= 0)
                takeOut(partial.tree, partial.linkFolders.at(static_cast<size_t>(link->folder)), *link);
            counted.insert(link.key());
        }
        const QByteArray parent = roots[i].left(roots[i].lastIndexOf('/'));
        if (parent == library) {
            absorb(libraryNode, std::move(partial.tree));
            anyLibrary = true;
        } else if (parent == home) {
            absorb(homeNode, std::move(partial.tree));
        }
    }
    if (anyLibrary) {
        settleKind(libraryNode);
        homeNode.bytes += libraryNode.bytes;
        homeNode.fileCount += libraryNode.fileCount;
        homeNode.makeup.add(libraryNode.makeup);
        homeNode.children.push_back(std::move(libraryNode));
    }
    settleKind(homeNode);
    bound(homeNode, limit);
    return homeNode;
}

void bound(FolderNode& tree, qsizetype limit)
{
    tree.foldAtOrBelow((tree.bytes + shareDivisor - 1) / shareDivisor - 1);
    std::vector<qint64> sizes;
    collectBytes(tree, sizes);
    const auto below = static_cast<size_t>(std::max<qsizetype>(limit - 1, 0));
    if (sizes.size() > below) {
        std::nth_element(sizes.begin(), sizes.begin() + qsizetype(below), sizes.end(), std::greater<>());
        tree.foldAtOrBelow(sizes[below]);
    }
    tree.sortChildren();
}

}  // namespace HomeTree
