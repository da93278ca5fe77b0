#include "storage/FolderSplice.h"

#include "storage/FolderScope.h"
#include "storage/FolderTally.h"
#include "storage/FolderUsageBuilder.h"
#include "storage/HomeTree.h"
#include "vocabulary/PathRules.h"

#include <QFile>

#include <algorithm>

namespace FolderSplice {

namespace {

// What the folder holds now less what the report held for it.
struct Change {
    qint64 bytes = 0;
    qint64 files = 0;
    FolderNode::Makeup makeup;
};

// What one walk of the folder tells each list, beside the entries inside it.
struct Place {
    QString folder;
    std::optional<FolderScope> above;  // absent when the folder is a root of the analysis
    FolderScope scope;
};

// The walked folder's node, or an empty one when it is gone. A walk that holds more folders than
// it may keep can fold even its top folder; then its bytes stand as folded.
FolderNode walkedNode(StoragePartial& walked, const QString& name)
{
    if (walked.tree.children.size() == 1)
        return std::move(walked.tree.children.front());
    FolderNode node = std::move(walked.tree);
    node.name = name;
    node.ownBytes = 0;
    node.foldedBytes = node.bytes;
    node.children.clear();
    return node;
}

void settleAncestorKinds(const std::vector<FolderNode*>& path, qsizetype rootIndex, const QString& root,
                         const QStringList& names, const BucketRules& rules)
{
    std::vector<FolderScope> scopes;
    QByteArray folder = QFile::encodeName(root);
    for (qsizetype index = rootIndex; index < qsizetype(path.size()); ++index) {
        if (index > rootIndex)
            folder += '/' + QFile::encodeName(names.at(index - 1));
        scopes.push_back(FolderScope::enter(scopes.empty() ? nullptr : &scopes.back(), folder, rules));
    }
    for (qsizetype index = qsizetype(path.size()) - 1; index >= 0; --index) {
        FolderNode& node = *path.at(size_t(index));
        if (index < rootIndex) {
            HomeTree::settleKind(node);
            continue;
        }
        FolderTally tally;
        tally.kind = scopes.at(size_t(index - rootIndex)).kind;
        tally.byBucket = node.makeup.kindBytes;
        node.kind = tally.treeKind();
    }
}

Change spliceTree(FolderNode& home, const QStringList& names, FolderNode fresh, const QString& root,
                  const BucketRules& rules, qsizetype treeNodes)
{
    std::vector<FolderNode*> path{&home};
    for (qsizetype depth = 0; depth + 1 < names.size(); ++depth)
        path.push_back(path.back()->find({names.at(depth)}));
    auto& siblings = path.back()->children;
    const auto slot = std::find_if(siblings.begin(), siblings.end(),
                                   [&](const FolderNode& node) { return node.name == names.last(); });
    Change change{fresh.bytes - slot->bytes, fresh.fileCount - slot->fileCount, fresh.makeup};
    change.makeup.add(slot->makeup, -1);
    if (fresh.bytes == 0 && fresh.fileCount == 0)
        siblings.erase(slot);
    else
        *slot = std::move(fresh);
    for (FolderNode* node : path) {
        node->bytes += change.bytes;
        node->fileCount += change.files;
        node->makeup.add(change.makeup);
    }
    settleAncestorKinds(path, names.first() == QLatin1String("Library") ? 2 : 1, root, names, rules);
    HomeTree::bound(home, treeNodes);
    return change;
}

struct Sum {
    qint64 bytes = 0;
    qint64 files = 0;
};

// Takes the entries inside the folder out of a kind's list and returns what they held.
Sum takeInside(QList<StorageReport::FolderUsage>& list, const QString& folder)
{
    Sum sum;
    list.removeIf([&](const StorageReport::FolderUsage& usage) {
        if (!PathRules::isAtOrBelow(usage.path, folder))
            return false;
        sum.bytes += usage.bytes;
        sum.files += usage.fileCount;
        return true;
    });
    return sum;
}

// The folder's files under the usage that holds it, as the walk found them (`loose`), in place
// of what the report held for them: `before` bytes and files, `beforeFiles` of them in its group.
void replaceLoose(StorageReport::FolderUsage& usage, const StorageReport::FolderUsage& loose, const Sum& before,
                  const Sum& beforeGroup, const Place& place)
{
    usage.bytes += loose.bytes - before.bytes;
    usage.fileCount += loose.fileCount - before.files;
    usage.files.removeIf([&](const StorageReport::FileUsage& file) { return PathRules::isAtOrBelow(file.path, place.folder); });
    usage.files.append(loose.files);
    FolderUsageBuilder::sortAndCut(usage.files, StorageReport::filesKept);
    const QString group = QFile::decodeName(place.scope.group);
    if (!usage.subfolders.contains(group) && !loose.subfolders.contains(group))
        return;
    StorageReport::SubfolderUsage& grouped = usage.subfolders[group];
    const StorageReport::SubfolderUsage found = loose.subfolders.value(group);
    grouped.bytes += found.bytes - beforeGroup.bytes;
    grouped.fileCount += found.fileCount - beforeGroup.files;
    if (grouped.fileCount <= 0)
        usage.subfolders.remove(group);
}

void spliceKind(QList<StorageReport::FolderUsage>& list, StorageBucket bucket, const QList<StorageReport::FolderUsage>& walked,
                const FolderNode::Makeup& before, const Place& place)
{
    const auto index = static_cast<size_t>(bucket);
    const bool complete = list.size() < StorageReport::foldersKept;
    const Sum inside = takeInside(list, place.folder);
    const Sum loose{before.kindBytes.at(index) - inside.bytes, before.kindFiles.at(index) - inside.files};
    // Files only: a folder's own blocks count in its usage but never in a group.
    const bool blocksHere = place.above && place.above->kind == bucket;
    const Sum looseGroup{loose.bytes - (blocksHere ? before.folderBytes : 0), loose.files};
    StorageReport::FolderUsage none;
    const StorageReport::FolderUsage* found = &none;
    for (const StorageReport::FolderUsage& usage : walked) {
        if (PathRules::isAtOrBelow(usage.path, place.folder))
            list.append(usage);
        else
            found = &usage;
    }
    if (place.above) {
        none.path = QFile::decodeName(place.above->usage);
        const auto holder = std::find_if(list.begin(), list.end(),
                                         [&](const StorageReport::FolderUsage& usage) { return usage.path == none.path; });
        if (holder != list.end())
            replaceLoose(*holder, *found, loose, StorageBuckets::hasSubfolders(bucket) ? looseGroup : Sum{}, place);
        else if (complete && found != &none)
            list.append(*found);
        list.removeIf([](const StorageReport::FolderUsage& usage) { return usage.bytes == 0 && usage.fileCount == 0; });
    }
    FolderUsageBuilder::sortAndCut(list, StorageReport::foldersKept);
}

struct Unlisted {
    qint64 bytes = 0;
    qint64 files = 0;
    qint64 smallBytes = 0;
};

// What the folder adds to the nearest listed folder above it: all of it but its listed parts.
Unlisted unlistedOf(const FolderNode& node, const QList<StorageReport::LargeFolder>& listedInside)
{
    Unlisted unlisted{node.bytes, node.fileCount, node.makeup.smallBytes};
    for (const StorageReport::LargeFolder& listed : listedInside) {
        unlisted.bytes -= listed.bytes;
        unlisted.files -= listed.fileCount;
        unlisted.smallBytes -= listed.smallBytes;
    }
    return unlisted;
}

void spliceLargeFolders(QList<StorageReport::LargeFolder>& large, const QList<StorageReport::LargeFolder>& walked,
                        const FolderNode& before, const FolderNode& after, const QString& folder)
{
    QList<StorageReport::LargeFolder> inside;
    large.removeIf([&](const StorageReport::LargeFolder& listed) {
        if (!PathRules::isAtOrBelow(listed.path, folder))
            return false;
        inside.append(listed);
        return true;
    });
    const Unlisted old = unlistedOf(before, inside);
    const Unlisted now = unlistedOf(after, walked);
    StorageReport::LargeFolder* nearest = nullptr;
    for (StorageReport::LargeFolder& listed : large) {
        if (PathRules::isAtOrBelow(folder, listed.path) && (!nearest || listed.path.size() > nearest->path.size()))
            nearest = &listed;
    }
    if (nearest) {
        nearest->bytes += now.bytes - old.bytes;
        nearest->fileCount += now.files - old.files;
        nearest->smallBytes += now.smallBytes - old.smallBytes;
    }
    large.append(walked);
    std::stable_sort(large.begin(), large.end(), [](const auto& a, const auto& b) { return a.bytes > b.bytes; });
    if (large.size() > StorageReport::largeFoldersKept)
        large.resize(StorageReport::largeFoldersKept);
}

}  // namespace

QStringList namesOf(const StorageReport& report, const QString& home, const QString& folder)
{
    if (!folder.startsWith(home + QLatin1Char('/')))
        return {};
    const QStringList names = folder.mid(home.size() + 1).split(QLatin1Char('/'));
    if (names == QStringList{QStringLiteral("Library")} || names.contains(QString()) || !report.tree.find(names))
        return {};
    return names;
}

QString rootOf(const QString& home, const QStringList& names)
{
    const qsizetype depth = names.first() == QLatin1String("Library") ? 2 : 1;
    return home + QLatin1Char('/') + names.first(depth).join(QLatin1Char('/'));
}

StorageReport splice(StorageReport report, const QString& home, const QStringList& names, StoragePartial walked,
                     const BucketRules& rules, qsizetype treeNodes)
{
    const QString folder = home + QLatin1Char('/') + names.join(QLatin1Char('/'));
    const QString root = rootOf(home, names);
    const FolderNode before = *report.tree.find(names);
    FolderNode after = walkedNode(walked, names.last());
    const QByteArray path = QFile::encodeName(folder);
    Place place{folder, FolderScope::above(QFile::encodeName(root), path, rules), {}};
    place.scope = FolderScope::enter(place.above ? &*place.above : nullptr, path, rules);
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        const auto index = static_cast<size_t>(bucket);
        report.totals.at(index) += after.makeup.kindBytes.at(index) - before.makeup.kindBytes.at(index);
        spliceKind(report.folders.at(index), bucket, walked.folders.at(index).values(), before.makeup, place);
    }
    spliceLargeFolders(report.largeFolders, walked.largeFolders, before, after, folder);
    spliceTree(report.tree, names, std::move(after), root, rules, treeNodes);
    return report;
}

}  // namespace FolderSplice
