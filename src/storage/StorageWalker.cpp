#include "storage/StorageWalker.h"

#include "machinery/ScanProgress.h"
#include "machinery/SplitWalk.h"
#include "storage/FolderScope.h"
#include "storage/FolderTally.h"
#include "storage/FolderTreeBuilder.h"
#include "storage/FolderUsageBuilder.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr qint64 progressBatch = 4096;

QByteArrayView nameOf(QByteArrayView path)
{
    return path.sliced(path.lastIndexOf('/') + 1);
}

// One entry as the walk meets it; its path is built only where it is needed (a folder, a file
// that makes a list), since most files only add their bytes.
struct Entry {
    const TreeEntry& at;
    const struct stat* status;

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

// The fixed facts of one root's walk, shared by its pieces.
struct WalkSettings {
    QByteArray root;
    const BucketRules& rules;
    ScanProgress* progress;
    const CancellationToken* cancellation;
    qsizetype nodesKept;
    QByteArray rootParent;
    // Set once two pieces are found to hold one hard-linked file: the split walk is given up.
    std::atomic<bool>* piecesShareLinks = nullptr;
    // The scope of the folder holding the root when the root is a folder below a root of the
    // analysis, measured again alone; null for a root of the analysis.
    const FolderScope* above = nullptr;
};

// One walk in progress, or one piece of a split walk: the open folders, the root's own usage
// per bucket and the partial. The walk is physical, never follows a link and stays on the
// root's volume (a mount point is not reported at all). Every folder entered is left again, also
// one that could not be read; its own blocks count when it is entered, and the failure only
// counts it as unreadable.
//
// A piece begins with copies of the folders open where it was cut off, marked shared: what it
// counts into them is its share, and a shared folder it leaves is finished by the join, once the
// earlier pieces' shares are in. Pieces are joined in walk order, so the first walk always holds
// every folder's numbers up to the piece it joins.
class Walking : public SplittableVisitor {
public:
    explicit Walking(const WalkSettings& settings) : m_settings(settings), m_tree(settings.nodesKept) {}

    StoragePartial run(const QByteArray& root, int threads);

    std::unique_ptr<SplittableVisitor> fork() const override;
    void join(SplittableVisitor& later) override;
    Verdict enterFolder(const TreeEntry& entry) override;
    void leaveFolder(const TreeEntry& entry) override;
    Verdict visitItem(const TreeEntry& entry) override;
    void problem(const TreeEntry& entry, TreeProblem kind, int error) override;

private:
    struct Frame {
        FolderTally tally;
        bool package = false;
        bool shared = false;  // entered by an earlier piece: the tally holds this piece's share
        QByteArray name;  // raw; only folders that make a list need a path, built from the names
        int usageFrame = -1;  // the frame whose own usage takes its files; -1: the root's of each bucket
        std::unique_ptr<FolderUsageBuilder> ownUsage;
        FolderScope scope;
        qsizetype linkFolder = -1;  // its index in the partial's link folders, once it holds a link
    };
    // A shared folder this piece left: its share, finished by the join.
    struct LeftShared {
        FolderTally share;
        FolderTreeBuilder::Level kept;
    };

    void settle(size_t open);
    void enter(const Entry& entry);
    Frame makeFrame(const QByteArray& path) const;
    QByteArray pathOf(size_t frame) const;
    void leave();
    void finishFolder();
    void addFile(const Entry& entry);
    bool isRepeatedLink(const Entry& entry, StorageBucket bucket, qint64 bytes);
    qsizetype linkFolder(const Entry& entry);
    FolderUsageBuilder& usageOf(const Frame& frame, StorageBucket bucket);
    FolderUsageBuilder& usageFor(StorageBucket bucket);
    void keep(StorageBucket bucket, StorageReport::FolderUsage usage);
    void keep(StorageReport::LargeFolder folder);
    void takeFound(Walking& later, qsizetype linkOffset);
    void takeOpenFolders(Walking& later, qsizetype linkOffset);
    void finishUsages(bool sharedOnly);
    bool countEntry(const TreeEntry& entry);
    void finish(bool stopped);

    const WalkSettings& m_settings;
    QByteArray m_rootUsagePath;
    std::vector<Frame> m_frames;
    FolderTreeBuilder m_tree;
    std::array<std::unique_ptr<FolderUsageBuilder>, StorageBuckets::count> m_rootUsage;
    StoragePartial m_partial;
    std::vector<LeftShared> m_leftShared;  // deepest first
    qint64 m_entries = 0;
    qint64 m_joinedEntries = 0;  // those of the pieces joined into this one
};

StoragePartial Walking::run(const QByteArray& root, int threads)
{
    m_rootUsagePath = m_settings.above ? m_settings.above->usage : root;
    TreeWalker::End end = TreeWalker::End::Finished;
    if (threads > 1) {
        SplitWalk::Options options;
        options.threads = threads;
        end = SplitWalk(options).walk(root, *this).end;
    } else {
        end = TreeWalker(TreeWalker::Options{}).walk(root, *this).end;
    }
    finish(end != TreeWalker::End::Finished);
    return std::move(m_partial);
}

std::unique_ptr<SplittableVisitor> Walking::fork() const
{
    auto piece = std::make_unique<Walking>(m_settings);
    piece->m_rootUsagePath = m_rootUsagePath;
    for (const Frame& frame : m_frames) {
        Frame copy;
        copy.tally = frame.tally.standing();
        copy.package = frame.package;
        copy.shared = true;
        copy.name = frame.name;
        copy.usageFrame = frame.usageFrame;
        if (frame.ownUsage)
            copy.ownUsage = std::make_unique<FolderUsageBuilder>(frame.ownUsage->path());
        copy.scope = frame.scope;
        piece->m_frames.push_back(std::move(copy));
        piece->m_tree.enterFolder();
    }
    return piece;
}

TreeVisitor::Verdict Walking::enterFolder(const TreeEntry& entry)
{
    settle(static_cast<size_t>(entry.depth()));
    enter(Entry{entry, &entry.status()});
    return countEntry(entry) ? Verdict::Enter : Verdict::Stop;
}

void Walking::leaveFolder(const TreeEntry& entry)
{
    settle(static_cast<size_t>(entry.depth()) + 1);
    leave();  // counted when entered
}

TreeVisitor::Verdict Walking::visitItem(const TreeEntry& entry)
{
    settle(static_cast<size_t>(entry.depth()));
    addFile(Entry{entry, &entry.status()});
    return countEntry(entry) ? Verdict::Enter : Verdict::Stop;
}

// Unreadable folders are skipped; their own blocks are counted where they stand (when entered),
// and what they hold falls into the space the analysis cannot attribute.
void Walking::problem(const TreeEntry& entry, TreeProblem, int)
{
    ++m_partial.unreadableFolders;
    countEntry(entry);
}

// A piece cut off right after entering a folder that went to another piece starts beside that
// folder: the depth of its first entry shows which of the copied folders still enclose it.
void Walking::settle(size_t open)
{
    while (m_frames.size() > open && m_frames.back().shared) {
        m_frames.pop_back();
        (void)m_tree.leaveShared();
    }
}

void Walking::enter(const Entry& entry)
{
    Frame frame = makeFrame(entry.path());
    const StorageBucket bucket = frame.tally.kind.value_or(StorageBucket::other);
    const qint64 bytes = allocated(*entry.status);
    m_partial.totals.at(static_cast<size_t>(bucket)) += bytes;
    frame.tally.addOwnBlocks(bucket, bytes);
    m_frames.push_back(std::move(frame));
    usageOf(m_frames.back(), bucket).addBytes(bytes);
    m_tree.enterFolder();
}

// A folder takes its bucket, package and usage from the scope it enters; a usage of its own
// (or, at the top of a walk below a forced folder, that folder's) collects its files.
Walking::Frame Walking::makeFrame(const QByteArray& path) const
{
    const Frame* parent = m_frames.empty() ? nullptr : &m_frames.back();
    Frame frame;
    frame.scope = FolderScope::enter(parent ? &parent->scope : m_settings.above, path, m_settings.rules);
    frame.package = frame.scope.package;
    frame.tally.kind = frame.scope.kind;
    frame.tally.insidePackage = frame.scope.insidePackage;
    frame.tally.listable = !frame.scope.insidePackage;
    if (parent && !frame.scope.startsUsage) {
        frame.usageFrame = parent->usageFrame;
    } else if (frame.scope.kind) {
        frame.ownUsage = std::make_unique<FolderUsageBuilder>(QFile::decodeName(frame.scope.usage));
        frame.usageFrame = static_cast<int>(m_frames.size());
    }
    frame.name = nameOf(path).toByteArray();
    return frame;
}

QByteArray Walking::pathOf(size_t frame) const
{
    if (frame == 0)
        return m_settings.root;
    QByteArray path = m_settings.root;
    while (path.endsWith('/'))
        path.chop(1);
    for (size_t index = 1; index <= frame; ++index)
        path.append('/').append(m_frames.at(index).name);
    return path;
}

// A shared folder's share waits for the join; any other folder is finished here.
void Walking::leave()
{
    Frame& frame = m_frames.back();
    if (!frame.shared) {
        finishFolder();
        return;
    }
    if (frame.ownUsage)
        keep(*frame.tally.kind, std::move(*frame.ownUsage).finish());
    m_leftShared.push_back({std::move(frame.tally), m_tree.leaveShared()});
    m_frames.pop_back();
}

void Walking::finishFolder()
{
    const bool listed = m_frames.back().tally.isLarge();
    const QByteArray path = listed ? pathOf(m_frames.size() - 1) : QByteArray();
    Frame frame = std::move(m_frames.back());
    m_frames.pop_back();
    if (listed) {
        keep(StorageReport::LargeFolder{QFile::decodeName(path), frame.tally.unlistedBytes,
                                        frame.tally.unlistedFiles, frame.tally.unlistedSmallBytes,
                                        frame.tally.listedKind()});
    }
    m_tree.leaveFolder(FolderNode{QFile::decodeName(frame.name), frame.tally.bytes,
                                  frame.tally.fileCount, frame.tally.ownBytes, 0, frame.tally.treeKind(), {},
                                  frame.tally.makeup()});
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
        m_tree.addRootFile(bucket, bytes);
        const QByteArray path = entry.path();
        m_rootUsagePath = parentOf(path).toByteArray();
        usageFor(bucket).addFile(bytes, {}, false, [&] { return QFile::decodeName(path); });
        return;
    }
    m_frames.back().tally.addFile(bucket, bytes);
    usageOf(*frame, bucket).addFile(bytes, frame->scope.group, StorageBuckets::hasSubfolders(bucket),
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
    QByteArray relative = entry.at.folderPathBytes().mid(m_settings.rootParent.size());
    if (relative.startsWith('/'))
        relative.remove(0, 1);
    m_partial.linkFolders.push_back(std::move(relative));
    const qsizetype index = qsizetype(m_partial.linkFolders.size()) - 1;
    if (known)
        *known = index;
    return index;
}

FolderUsageBuilder& Walking::usageOf(const Frame& frame, StorageBucket bucket)
{
    return frame.usageFrame >= 0 ? *m_frames.at(static_cast<size_t>(frame.usageFrame)).ownUsage : usageFor(bucket);
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
bool Walking::countEntry(const TreeEntry& entry)
{
    if (++m_entries % progressBatch != 0)
        return true;
    if (m_settings.progress) {
        m_settings.progress->addEntries(progressBatch);
        m_settings.progress->setCurrentFolder(QFile::decodeName(entry.folderPathBytes()));
    }
    if (m_settings.piecesShareLinks && m_settings.piecesShareLinks->load())
        return false;
    return !(m_settings.cancellation && m_settings.cancellation->isCancelled());
}

// Takes in the next piece in walk order: what it found, then the shared folders it left, which
// are whole now, then the folders it still holds open.
void Walking::join(SplittableVisitor& laterPiece)
{
    auto& later = static_cast<Walking&>(laterPiece);
    if (m_settings.progress)
        m_settings.progress->addEntries(later.m_entries % progressBatch);
    m_joinedEntries += later.m_entries + later.m_joinedEntries;
    const auto linkOffset = static_cast<qsizetype>(m_partial.linkFolders.size());
    later.finishUsages(true);
    takeFound(later, linkOffset);
    for (LeftShared& left : later.m_leftShared) {
        if (m_frames.empty())  // only a stopped walk leaves pieces that do not fit
            break;
        m_frames.back().tally.add(left.share);
        m_tree.addToCurrent(std::move(left.kept));
        finishFolder();
    }
    takeOpenFolders(later, linkOffset);
}

void Walking::takeFound(Walking& later, qsizetype linkOffset)
{
    StoragePartial& found = later.m_partial;
    for (auto link = found.links.begin(); link != found.links.end(); ++link) {
        if (m_partial.links.contains(link.key())) {
            if (m_settings.piecesShareLinks)
                m_settings.piecesShareLinks->store(true);
            continue;
        }
        m_partial.links.insert(link.key(), {link->bucket, link->bytes, link->folder + linkOffset});
    }
    for (QByteArray& folder : found.linkFolders)
        m_partial.linkFolders.push_back(std::move(folder));
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        const auto index = static_cast<size_t>(bucket);
        m_partial.totals.at(index) += found.totals.at(index);
        for (StorageReport::FolderUsage& usage : found.folders.at(index))
            keep(bucket, std::move(usage));
    }
    for (StorageReport::LargeFolder& folder : found.largeFolders)
        keep(std::move(folder));
    m_partial.unreadableFolders += found.unreadableFolders;
}

// The later piece's shared folders are this walk's open ones (their shares are added); the
// folders it entered itself stay open here.
void Walking::takeOpenFolders(Walking& later, qsizetype linkOffset)
{
    if (later.m_entries == 0)  // met nothing (it followed the last subfolder): it holds only copies
        return;
    const auto shared = static_cast<size_t>(
        std::count_if(later.m_frames.begin(), later.m_frames.end(), [](const Frame& frame) { return frame.shared; }));
    if (shared != m_frames.size()) {
        m_partial.complete = false;
        return;
    }
    for (size_t index = 0; index < shared; ++index)
        m_frames[index].tally.add(later.m_frames[index].tally);
    m_tree.append(std::move(later.m_tree), shared);
    for (size_t index = shared; index < later.m_frames.size(); ++index) {
        Frame& frame = later.m_frames[index];
        if (frame.linkFolder >= 0)
            frame.linkFolder += linkOffset;
        m_frames.push_back(std::move(frame));
    }
}

// Finishes the usages still being built: the root's of each bucket and those of open folders
// (of shared ones only, for a piece whose other folders go on in the walk that joins it).
void Walking::finishUsages(bool sharedOnly)
{
    for (Frame& frame : m_frames) {
        if (frame.ownUsage && (frame.shared || !sharedOnly)) {
            keep(*frame.tally.kind, std::move(*frame.ownUsage).finish());
            frame.ownUsage.reset();
        }
    }
    for (StorageBucket bucket : StorageBuckets::allCases()) {
        if (auto& usage = m_rootUsage.at(static_cast<size_t>(bucket))) {
            keep(bucket, std::move(*usage).finish());
            usage.reset();
        }
    }
}

void Walking::finish(bool stopped)
{
    if (m_settings.progress && m_entries % progressBatch != 0)
        m_settings.progress->addEntries(m_entries % progressBatch);
    // A stopped walk leaves folders open; their usages still hold what was counted.
    finishUsages(false);
    m_frames.clear();
    m_partial.tree = std::move(m_tree).finish();
    m_partial.complete = m_partial.complete && !stopped;
    m_partial.entries = m_entries + m_joinedEntries;
}

}  // namespace

StorageWalker::StorageWalker(const BucketRules& rules, ScanProgress* progress, const CancellationToken* cancellation,
                             qsizetype treeNodes, int threads)
    : m_rules(rules), m_progress(progress), m_cancellation(cancellation), m_treeNodes(treeNodes), m_threads(threads)
{
}

StoragePartial StorageWalker::walk(const QByteArray& root, const FolderScope* above) const
{
    std::atomic<bool> piecesShareLinks{false};
    WalkSettings settings{root, m_rules, m_progress, m_cancellation, m_treeNodes, parentOf(root).toByteArray(),
                          &piecesShareLinks, above};
    StoragePartial partial = Walking(settings).run(root, m_threads);
    if (!piecesShareLinks.load())
        return partial;
    // Each piece counted the file it met: only one walk in walk order knows which link came first.
    settings.piecesShareLinks = nullptr;
    return Walking(settings).run(root, 1);
}
