#include "machinery/Fingerprint.h"

#include "machinery/SplitWalk.h"
#include "platform/Platform.h"

#include <QFile>

#include <algorithm>
#include <initializer_list>
#include <sys/stat.h>

namespace Fingerprint {

namespace {

// FNV-1a: stable across runs and platforms, unlike qHash, so stamps never depend on a seed.
quint64 fnv1a(quint64 hash, const void* data, size_t size)
{
    const auto* bytes = static_cast<const unsigned char*>(data);
    for (size_t i = 0; i < size; ++i) {
        hash ^= bytes[i];
        hash *= 1099511628211ULL;
    }
    return hash;
}

quint64 entryHash(const QByteArray& relativePath, std::initializer_list<qint64> values)
{
    quint64 hash = fnv1a(14695981039346656037ULL, relativePath.constData(), size_t(relativePath.size()));
    for (qint64 value : values)
        hash = fnv1a(hash, &value, sizeof value);
    return hash;
}

qint64 kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return 'f';
    if (S_ISDIR(mode))
        return 'd';
    if (S_ISLNK(mode))
        return 'l';
    return 'o';
}

// One walk in progress. Entry hashes are summed, so the order in which the file system lists a
// folder (which differs between an original and its copy) never changes the result, and pieces
// of one tree walked apart add up to the same stamp. With `links`, it measures as FileSizer
// does, too: every entry counted, a hard-linked file once over the whole walk.
class StampVisitor : public SplittableVisitor {
public:
    StampVisitor(qsizetype rootLength, LinkRegister* links) : m_rootLength(rootLength), m_links(links) {}

    std::unique_ptr<SplittableVisitor> fork() const override
    {
        return std::make_unique<StampVisitor>(m_rootLength, m_links);
    }

    void join(SplittableVisitor& later) override
    {
        const auto& part = static_cast<StampVisitor&>(later);
        m_stamp += part.m_stamp;
        m_size += part.m_size;
    }

    Verdict enterFolder(const TreeEntry& entry) override
    {
        add(entry);
        if (m_links)
            m_size.addFolder(entry.status());
        return Verdict::Enter;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        const struct stat& info = entry.status();
        // Finder writes ".DS_Store" files into folders it shows; only such a file is noise. A
        // folder or a link of that name is someone's data like any other.
        if (!(S_ISREG(info.st_mode) && entry.name() == ".DS_Store"))
            add(entry);
        if (m_links && (info.st_nlink < 2 || m_links->firstSighting(info)))
            m_size.addItem(info);
        return Verdict::Enter;
    }

    // A folder that can't be opened was added when entered, as its own entry; either way what
    // could not be read is counted, never guessed.
    void problem(const TreeEntry& entry, TreeProblem, int) override
    {
        ++m_stamp.unreadable;
        m_size.addProblem(entry.depth());
    }

    const TreeStamp& stamp() const { return m_stamp; }
    const FileSizer::Measurement& size() const { return m_size; }

private:
    void add(const TreeEntry& entry)
    {
        const QByteArray relativePath = entry.pathBytes().mid(m_rootLength);
        const struct stat& info = entry.status();
        m_stamp.layout += entryHash(relativePath, {kindOf(info.st_mode)});
        m_stamp.statusStamps += entryHash(relativePath, {Platform::statusChangeNanoseconds(info)});
        m_stamp.latestChange = std::max(m_stamp.latestChange, qint64(info.st_mtime));
        if (!S_ISREG(info.st_mode))
            return;
        ++m_stamp.files;
        m_stamp.bytes += info.st_size;
        m_stamp.stamps += entryHash(relativePath, {qint64(info.st_size), Platform::modificationNanoseconds(info)});
    }

    qsizetype m_rootLength;
    LinkRegister* m_links;
    TreeStamp m_stamp;
    FileSizer::Measurement m_size;
};

// The root as relative paths count from it, so that "a/" and "a" read alike.
QByteArray rootOf(const QString& path)
{
    QByteArray root = QFile::encodeName(path);
    while (root.size() > 1 && root.endsWith('/'))
        root.chop(1);
    return root;
}

// Walks `root` into `visitor`; true when the walk ran to its end. The walker looks at the token
// every few thousand entries, so a stop that came before the end of a small tree is looked for
// here too: a partial summary would pass for a whole one.
bool walkWhole(const QByteArray& root, StampVisitor& visitor, ScanProgress* progress,
               const CancellationToken* cancellation)
{
    SplitWalk::Options options;
    options.walker.progress = progress;
    options.walker.cancellation = cancellation;
    const bool finished = SplitWalk(options).walk(root, visitor).end == TreeWalker::End::Finished;
    return finished && !(cancellation && cancellation->isCancelled());
}

}  // namespace

std::optional<TreeStamp> compute(const QString& path, const CancellationToken* cancellation)
{
    const QByteArray root = rootOf(path);
    StampVisitor visitor(root.size(), nullptr);
    if (!walkWhole(root, visitor, nullptr, cancellation))
        return std::nullopt;
    return visitor.stamp();
}

std::optional<Measured> measured(const QString& path, ScanProgress* progress, const CancellationToken* cancellation)
{
    const QByteArray root = rootOf(path);
    LinkRegister links;
    StampVisitor visitor(root.size(), &links);
    if (!walkWhole(root, visitor, progress, cancellation))
        return std::nullopt;
    return Measured{visitor.stamp(), visitor.size()};
}

}  // namespace Fingerprint
