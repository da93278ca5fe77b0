#include "storage/StorageWalker.h"

#include "machinery/ScanProgress.h"
#include "machinery/TreeWalker.h"
#include "storage/FolderTally.h"
#include "storage/FolderTreeBuilder.h"
#include "storage/FolderUsageBuilder.h"

#include <QFile>

#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr qint64 progressBatch = 4096;

enum class EntryKind { folder, folderDone, file, unreadable };

QByteArrayView nameOf(QByteArrayView path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

// One entry as the walk meets it; its path is built only where it is needed (a folder, a file
// that makes a list), since most files only add their bytes.
struct Entry {
    EntryKind kind;
    const TreeEntry& at;
    const struct stat* status;  // null when the entry could not be read at all

    QByteArray path() const { return at.pathBytes(); }
    QByteArrayView name() const { return QByteArrayView(at.name().data(), qsizetype(at.name().size())); }
};

QByteArrayView parentOf(QByteArrayView path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash <= 0 ? path.first(slash < 0 ? 0 : 1) : path.first(slash);
}

qint64 allocated(const struct stat& status)
{
    return static_cast<qint64>(status.st_blocks) * 512;
}

// The one traversal of the walk, on the descriptor walker: physical, never following a link,
// on the root's volume only (a mount point is not reported at all). Every folder entered is left
// again, also one that could not be read; its own blocks count when it is entered, and the
// failure only counts it as unreadable. `visit` returns false to stop; so does this function.
template <typename Visit>
class TraversalVisitor : public TreeVisitor {
public:
    explicit TraversalVisitor(Visit& visit) : m_visit(visit) {}

    Verdict enterFolder(const TreeEntry& entry) override { return pass(EntryKind::folder, entry, &entry.status()); }
    void leaveFolder(const TreeEntry& entry) override { pass(EntryKind::folderDone, entry, &entry.status()); }
    Verdict visitItem(const TreeEntry& entry) override { return pass(EntryKind::file, entry, &entry.status()); }
    void problem(const TreeEntry& entry, TreeProblem, int) override { pass(EntryKind::unreadable, entry, nullptr); }

private:
    Verdict pass(EntryKind kind, const TreeEntry& entry, const struct stat* status)
    {
        return m_visit(Entry{kind, entry, status}) ? Verdict::Enter : Verdict::Stop;
    }

    Visit& m_visit;
};

template <typename Visit>
bool traverse(const QByteArray& root, Visit visit)
{
    TreeWalker walker(TreeWalker::Options{});
    TraversalVisitor<Visit> visitor(visit);
    return walker.walk(root, visitor).end != TreeWalker::End::Stopped;
}

// One walk in progress: the open folders, the root's own usage per bucket and the partial.
class Walking {
public:
    Walking(const BucketRules& rules, ScanProgress* progress, const CancellationToken* cancellation, qsizetype nodesKept)
        : m_rules(rules), m_progress(progress), m_cancellation(cancellation), m_tree(nodesKept) {}

    StoragePartial run(const QByteArray& root);

private:
    struct Frame {
        FolderTally tally;
        bool package = false;
        FolderUsageBuilder* usage = nullptr;  // null: the root's usage of each file's bucket
        std::unique_ptr<FolderUsageBuilder> ownUsage;
        QByteArray group;  // "" directly in the usage's folder
        qsizetype linkFolder = -1;  // its index in the partial's link folders, once it holds a link
    };

    bool visit(const Entry& entry);
    void enterFolder(const Entry& entry);
    Frame makeFrame(QByteArrayView path) const;
    void leaveFolder(const Entry& entry);
    void addFile(const Entry& entry);
    void addUnreadable(const Entry& entry);
    bool isRepeatedLink(const Entry& entry, StorageBucket bucket, qint64 bytes);
    qsizetype linkFolder(const Entry& entry);
    FolderUsageBuilder& usageFor(StorageBucket bucket);
    void keep(StorageBucket bucket, StorageReport::FolderUsage usage);
    void keep(StorageReport::LargeFolder folder);
    bool countEntry(const Entry& entry);
    void finish(bool stopped);

    const BucketRules& m_rules;
    ScanProgress* m_progress;
    const CancellationToken* m_cancellation;
    QByteArray m_rootUsagePath;
    QByteArray m_rootParent;
    std::vector<Frame> m_frames;
    FolderTreeBuilder m_tree;
    std::array<std::unique_ptr<FolderUsageBuilder>, StorageBuckets::count> m_rootUsage;
    StoragePartial m_partial;
    qint64 m_entries = 0;
};

StoragePartial Walking::run(const QByteArray& root)
{
    m_rootUsagePath = root;
    m_rootParent = parentOf(root).toByteArray();
    const bool finished = traverse(root, [this](const Entry& entry) { return visit(entry); });
    finish(!finished);
    return std::move(m_partial);
}

bool Walking::visit(const Entry& entry)
{
    switch (entry.kind) {
    case EntryKind::folder:
        enterFolder(entry);
        break;
    case EntryKind::folderDone:
        leaveFolder(entry);
        return true;  // counted when entered
    case EntryKind::file:
        addFile(entry);
        break;
    case EntryKind::unreadable:
        addUnreadable(entry);
        break;
    }
    return countEntry(entry);
}

void Walking::enterFolder(const Entry& entry)
{
    Frame frame = makeFrame(entry.path());
    const StorageBucket bucket = frame.tally.kind.value_or(StorageBucket::other);
    const qint64 bytes = allocated(*entry.status);
    m_partial.totals.at(static_cast<size_t>(bucket)) += bytes;
    frame.tally.addOwnBlocks(bucket, bytes);
    (frame.usage ? *frame.usage : usageFor(bucket)).addBytes(bytes);
    m_frames.push_back(std::move(frame));
    m_tree.enterFolder();
}

// A folder inherits its parent's bucket, package and usage; a forced bucket of its own (by name
// outside any forced folder, by a full-path row anywhere outside a package) starts a new usage.
Walking::Frame Walking::makeFrame(QByteArrayView path) const
{
    const Frame* parent = m_frames.empty() ? nullptr : &m_frames.back();
    const QByteArrayView name = nameOf(path);
    Frame frame;
    frame.package = BucketRules::isPackage(name);
    if (parent) {
        frame.tally.kind = parent->tally.kind;
        frame.tally.insidePackage = parent->package || parent->tally.insidePackage;
        frame.tally.listable = !frame.tally.insidePackage;
        frame.usage = parent->usage;
        frame.group = parent->group.isEmpty() ? BucketRules::groupFolder(name) : parent->group;
    }
    if (frame.tally.insidePackage)
        return frame;
    const auto forced = frame.tally.kind ? m_rules.pathBucket(path) : m_rules.forcedBucket(path, name, parentOf(path));
    if (forced && forced != frame.tally.kind) {
        frame.tally.kind = forced;
        frame.ownUsage = std::make_unique<FolderUsageBuilder>(QFile::decodeName(path.toByteArray()));
        frame.usage = frame.ownUsage.get();
        frame.group.clear();
    }
    return frame;
}

void Walking::leaveFolder(const Entry& entry)
{
    Frame frame = std::move(m_frames.back());
    m_frames.pop_back();
    const bool listed = frame.tally.isLarge();
    if (listed) {
        keep(StorageReport::LargeFolder{QFile::decodeName(entry.path()), frame.tally.unlistedBytes,
                                        frame.tally.unlistedFiles, frame.tally.unlistedSmallBytes,
                                        frame.tally.listedKind()});
    }
    m_tree.leaveFolder(FolderNode{QFile::decodeName(entry.name().toByteArray()), frame.tally.bytes,
                                  frame.tally.fileCount, frame.tally.ownBytes, 0, frame.tally.treeKind(), {}});
    if (!m_frames.empty())
        m_frames.back().tally.absorb(frame.tally, listed);
    if (frame.ownUsage)
        keep(*frame.tally.kind, std::move(*frame.ownUsage).finish());
}

void Walking::addFile(const Entry& entry)
{
    const Frame* frame = m_frames.empty() ? nullptr : &m_frames.back();
    const StorageBucket bucket = frame && frame->tally.kind ? *frame->tally.kind : BucketRules::bucket(entry.name());
    const qint64 bytes = allocated(*entry.status);
    if (isRepeatedLink(entry, bucket, bytes))
        return;
    if (!frame) {  // the root is a file: it belongs to the folder that holds it
        m_tree.addRootFile(bytes);
        const QByteArray path = entry.path();
        m_rootUsagePath = parentOf(path).toByteArray();
        usageFor(bucket).addFile(bytes, {}, false, [&] { return QFile::decodeName(path); });
        return;
    }
    m_frames.back().tally.addFile(bucket, bytes);
    FolderUsageBuilder& usage = frame->usage ? *frame->usage : usageFor(bucket);
    usage.addFile(bytes, frame->group, StorageBuckets::hasSubfolders(bucket),
                  [&] { return QFile::decodeName(entry.path()); });
}

// A file with more hard links is counted once per walk here and once per report by the merge,
// which adds its bytes to the totals.
bool Walking::isRepeatedLink(const Entry& entry, StorageBucket bucket, qint64 bytes)
{
    const struct stat& status = *entry.status;
    if (status.st_nlink < 2) {
        m_partial.totals.at(static_cast<size_t>(bucket)) += bytes;
        return false;
    }
    const FileKey key{static_cast<qint32>(status.st_dev), static_cast<quint64>(status.st_ino)};
    if (m_partial.links.contains(key))
        return true;
    m_partial.links.insert(key, {bucket, bytes, linkFolder(entry)});
    return false;
}

// The folder holding a hard-linked file, named once per folder however many links it holds.
qsizetype Walking::linkFolder(const Entry& entry)
{
    qsizetype* known = m_frames.empty() ? nullptr : &m_frames.back().linkFolder;
    if (known && *known >= 0)
        return *known;
    QByteArray relative = entry.at.folderPathBytes().mid(m_rootParent.size());
    if (relative.startsWith('/'))
        relative.remove(0, 1);
    m_partial.linkFolders.push_back(std::move(relative));
    const qsizetype index = qsizetype(m_partial.linkFolders.size()) - 1;
    if (known)
        *known = index;
    return index;
}

// Unreadable folders are skipped; their own blocks are counted where they stand, and what they
// hold falls into the space the analysis cannot attribute.
void Walking::addUnreadable(const Entry& entry)
{
    ++m_partial.unreadableFolders;
    if (!entry.status)
        return;
    const StorageBucket bucket = m_frames.empty() ? StorageBucket::other
                                                  : m_frames.back().tally.kind.value_or(StorageBucket::other);
    const qint64 bytes = allocated(*entry.status);
    m_partial.totals.at(static_cast<size_t>(bucket)) += bytes;
    if (m_frames.empty())
        return;
    m_frames.back().tally.addOwnBlocks(bucket, bytes);
    (m_frames.back().usage ? *m_frames.back().usage : usageFor(bucket)).addBytes(bytes);
}

FolderUsageBuilder& Walking::usageFor(StorageBucket bucket)
{
    auto& usage = m_rootUsage.at(static_cast<size_t>(bucket));
    if (!usage)
        usage = std::make_unique<FolderUsageBuilder>(QFile::decodeName(m_rootUsagePath));
    return *usage;
}

// Keeps a finished folder; a bucket's list is cut back to the kept number whenever it reaches
// twice that, so a home of many small projects stays small in memory.
void Walking::keep(StorageBucket bucket, StorageReport::FolderUsage usage)
{
    auto& folders = m_partial.folders.at(static_cast<size_t>(bucket));
    auto found = folders.find(usage.path);
    if (found != folders.end()) {
        FolderUsageBuilder::merge(*found, std::move(usage));
        return;
    }
    folders.insert(usage.path, std::move(usage));
    if (folders.size() < 2 * StorageReport::foldersKept)
        return;
    QList<StorageReport::FolderUsage> kept = folders.values();
    FolderUsageBuilder::sortAndCut(kept, StorageReport::foldersKept);
    folders.clear();
    for (StorageReport::FolderUsage& each : kept)
        folders.insert(each.path, std::move(each));
}

void Walking::keep(StorageReport::LargeFolder folder)
{
    QList<StorageReport::LargeFolder>& large = m_partial.largeFolders;
    large.append(std::move(folder));
    if (large.size() < 2 * StorageReport::largeFoldersKept)
        return;
    std::sort(large.begin(), large.end(), [](const auto& a, const auto& b) { return a.bytes > b.bytes; });
    large.resize(StorageReport::largeFoldersKept);
}

// Counts one entry; at every full batch publishes it and answers whether to go on.
bool Walking::countEntry(const Entry& entry)
{
    if (++m_entries % progressBatch != 0)
        return true;
    if (m_progress) {
        m_progress->addEntries(progressBatch);
        m_progress->setCurrentFolder(QFile::decodeName(parentOf(entry.path()).toByteArray()));
    }
    return !(m_cancellation && m_cancellation->isCancelled());
}

void Walking::finish(bool stopped)
{
    if (m_progress && m_entries % progressBatch != 0)
        m_progress->addEntries(m_entries % progressBatch);
    // A stopped walk leaves folders open; their usages still hold what was counted.
    while (!m_frames.empty()) {
        Frame frame = std::move(m_frames.back());
        m_frames.pop_back();
        if (frame.ownUsage)
            keep(*frame.tally.kind, std::move(*frame.ownUsage).finish());
    }
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        if (auto& usage = m_rootUsage.at(static_cast<size_t>(bucket)))
            keep(bucket, std::move(*usage).finish());
    }
    m_partial.tree = std::move(m_tree).finish();
    m_partial.complete = !stopped;
}

}  // namespace

StorageWalker::StorageWalker(const BucketRules& rules, ScanProgress* progress, const CancellationToken* cancellation,
                             qsizetype treeNodes)
    : m_rules(rules), m_progress(progress), m_cancellation(cancellation), m_treeNodes(treeNodes)
{
}

StoragePartial StorageWalker::walk(const QByteArray& root) const
{
    return Walking(m_rules, m_progress, m_cancellation, m_treeNodes).run(root);
}
