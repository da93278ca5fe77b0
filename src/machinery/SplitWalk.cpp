#include "machinery/SplitWalk.h"

#include "machinery/CancellationToken.h"
#include "machinery/Descriptor.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <fcntl.h>
#include <optional>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

// A folder kept open while subtrees below it wait for a thread: they are opened relative to it,
// never by their path from the root.
struct HeldFolder {
    Descriptor folder;
    QByteArray path;
};

}  // namespace

// A stretch of the walk in walk order: either entries already met by a listing (no folder), or
// a subtree still to be walked below `folder`. Its visitor collects what the stretch holds.
struct SplitWalk::Piece {
    std::unique_ptr<SplittableVisitor> owned;  // null for the caller's own visitor
    SplittableVisitor* visitor = nullptr;
    std::optional<TreeFolder> folder;
    std::shared_ptr<HeldFolder> parent;  // keeps `folder.parentDescriptor` open

    static Piece of(std::unique_ptr<SplittableVisitor> visitor)
    {
        Piece piece;
        piece.visitor = visitor.get();
        piece.owned = std::move(visitor);
        return piece;
    }
};

// Lists one folder's entries into the current piece and turns each subfolder at `splitDepth`
// that the visitor enters into a subtree piece of its own, followed by a fresh piece for the
// entries after it.
class SplitWalk::Lister : public TreeVisitor {
public:
    Lister(Piece first, int splitDepth) : m_splitDepth(splitDepth) { m_pieces.push_back(std::move(first)); }

    std::vector<Piece> take() { return std::move(m_pieces); }

    Verdict enterFolder(const TreeEntry& entry) override
    {
        SplittableVisitor& current = *m_pieces.back().visitor;
        const Verdict verdict = current.enterFolder(entry);
        if (verdict != Verdict::Enter || entry.depth() != m_splitDepth || !holdParent(entry))
            return verdict;
        Piece subtree = Piece::of(current.fork());
        subtree.folder = TreeFolder{m_held->folder.get(), m_held->path, std::string(entry.name()),
                                    entry.status(), entry.depth()};
        subtree.parent = m_held;
        Piece after = Piece::of(current.fork());
        m_pieces.push_back(std::move(subtree));
        m_pieces.push_back(std::move(after));
        return Verdict::Skip;
    }

    void leaveFolder(const TreeEntry& entry) override { m_pieces.back().visitor->leaveFolder(entry); }
    Verdict visitItem(const TreeEntry& entry) override { return m_pieces.back().visitor->visitItem(entry); }
    void problem(const TreeEntry& entry, TreeProblem kind, int error) override
    {
        m_pieces.back().visitor->problem(entry, kind, error);
    }

private:
    // All subfolders shared out here lie in one folder: one duplicate of its descriptor serves
    // them all. Without one, the subfolder is simply walked here.
    bool holdParent(const TreeEntry& entry)
    {
        if (m_held)
            return true;
        Descriptor folder(::fcntl(entry.folderDescriptor(), F_DUPFD_CLOEXEC, 0));
        if (!folder.isValid())
            return false;
        m_held = std::make_shared<HeldFolder>(HeldFolder{std::move(folder), entry.folderPathBytes()});
        return true;
    }

    int m_splitDepth;
    std::vector<Piece> m_pieces;
    std::shared_ptr<HeldFolder> m_held;
};

// Walks the subtree pieces, in order of index, on the calling thread and, once the walk has
// proved big enough, on further threads. Each walked piece that follows only joined or walked
// ones is joined into the first at once and let go, so that what the pieces hold stays small
// while the walk goes on.
class SplitWalk::Pool {
public:
    Pool(std::vector<Piece>& pieces, const Options& options, qint64 entriesSoFar)
        : m_pieces(pieces), m_options(options), m_entries(entriesSoFar), m_walked(pieces.size(), true)
    {
        for (size_t index = 0; index < pieces.size(); ++index) {
            if (pieces[index].folder) {
                m_subtrees.push_back(index);
                m_walked[index] = false;
            }
        }
        joinWalked();
    }

    // The first piece not joined yet.
    size_t joined() const { return m_joined; }

    TreeWalker::Result run()
    {
        std::vector<std::thread> helpers;
        while (takeOne()) {
            if (helpers.empty() && m_entries.load() >= m_options.splitAfter && m_next.load() < m_subtrees.size()) {
                for (int i = 1; i < m_options.threads; ++i)
                    helpers.emplace_back([this] { while (takeOne()) {} });
            }
        }
        for (std::thread& helper : helpers)
            helper.join();
        return {static_cast<TreeWalker::End>(m_end.load()), m_entries.load()};
    }

private:
    bool takeOne()
    {
        if (m_end.load() != int(TreeWalker::End::Finished))
            return false;
        const CancellationToken* cancellation = m_options.walker.cancellation;
        if (cancellation && cancellation->isCancelled()) {
            m_end.store(int(TreeWalker::End::Cancelled));
            return false;
        }
        const size_t index = m_next.fetch_add(1);
        if (index >= m_subtrees.size())
            return false;
        Piece& piece = m_pieces[m_subtrees[index]];
        const TreeWalker::Result result = TreeWalker(m_options.walker).walkBelow(*piece.folder, *piece.visitor);
        piece.parent.reset();
        m_entries.fetch_add(result.entries);
        if (result.end != TreeWalker::End::Finished)
            m_end.store(int(result.end));
        const std::lock_guard lock(m_joining);
        m_walked[m_subtrees[index]] = true;
        joinWalked();
        return true;
    }

    void joinWalked()
    {
        for (; m_joined < m_pieces.size() && m_walked[m_joined]; ++m_joined) {
            if (m_joined == 0)
                continue;
            m_pieces.front().visitor->join(*m_pieces[m_joined].visitor);
            m_pieces[m_joined].owned.reset();
        }
    }

    std::vector<Piece>& m_pieces;
    const Options& m_options;
    std::vector<size_t> m_subtrees;
    std::atomic<size_t> m_next{0};
    std::atomic<qint64> m_entries;
    std::atomic<int> m_end{int(TreeWalker::End::Finished)};
    std::mutex m_joining;
    std::vector<bool> m_walked;  // by piece; guarded by m_joining
    size_t m_joined = 0;
};

SplitWalk::SplitWalk(Options options) : m_options(options) {}

TreeWalker::Result SplitWalk::walk(const QByteArray& root, SplittableVisitor& visitor)
{
    Options options = m_options;
    LinkRegister links;
    if (!options.walker.links)
        options.walker.links = &links;

    Piece first;
    first.visitor = &visitor;
    Lister rootLister(std::move(first), 1);
    TreeWalker::Result total = TreeWalker(options.walker).walk(root, rootLister);
    std::vector<Piece> pieces = rootLister.take();

    // List level by level until there are enough subtrees to share out.
    for (int level = 2; level <= options.listedLevels && total.end == TreeWalker::End::Finished; ++level) {
        qint64 subtrees = std::count_if(pieces.begin(), pieces.end(), [](const Piece& p) { return p.folder.has_value(); });
        if (subtrees == 0 || subtrees >= options.subtrees)
            break;
        std::vector<Piece> listed;
        for (Piece& piece : pieces) {
            if (!piece.folder || subtrees >= options.subtrees || total.end != TreeWalker::End::Finished) {
                listed.push_back(std::move(piece));
                continue;
            }
            const TreeFolder folder = *std::exchange(piece.folder, std::nullopt);
            const std::shared_ptr<HeldFolder> parent = std::move(piece.parent);
            Lister lister(std::move(piece), folder.depth + 1);
            const TreeWalker::Result result = TreeWalker(options.walker).walkBelow(folder, lister);
            total.entries += result.entries;
            total.end = result.end;
            for (Piece& found : lister.take()) {
                subtrees += found.folder ? 1 : 0;
                listed.push_back(std::move(found));
            }
            --subtrees;
        }
        pieces = std::move(listed);
    }

    size_t joined = 1;
    if (total.end == TreeWalker::End::Finished) {
        Pool pool(pieces, options, total.entries);
        total = pool.run();
        joined = std::max<size_t>(pool.joined(), 1);
    }
    for (size_t index = joined; index < pieces.size(); ++index)
        visitor.join(*pieces[index].visitor);
    return total;
}
