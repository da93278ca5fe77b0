#include "machinery/Fingerprint.h"

#include "machinery/TreeWalker.h"
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
// folder (which differs between an original and its copy) never changes the result.
class StampVisitor : public TreeVisitor {
public:
    explicit StampVisitor(qsizetype rootLength) : m_rootLength(rootLength) {}

    Verdict enterFolder(const TreeEntry& entry) override
    {
        add(entry);
        return Verdict::Enter;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        // Finder writes ".DS_Store" files into folders it shows; only such a file is noise. A
        // folder or a link of that name is someone's data like any other.
        if (!(S_ISREG(entry.status().st_mode) && entry.name() == ".DS_Store"))
            add(entry);
        return Verdict::Enter;
    }

    // A folder that can't be opened was added when entered, as its own entry; either way what
    // could not be read is counted, never guessed.
    void problem(const TreeEntry&, TreeProblem, int) override { ++m_stamp.unreadable; }

    const TreeStamp& result() const { return m_stamp; }

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
    TreeStamp m_stamp;
};

}  // namespace

std::optional<TreeStamp> compute(const QString& path, const CancellationToken* cancellation)
{
    QByteArray root = QFile::encodeName(path);
    while (root.size() > 1 && root.endsWith('/'))
        root.chop(1);  // so relative paths read alike for "a/" and "a"
    TreeWalker::Options options;
    options.cancellation = cancellation;
    TreeWalker walker(options);
    StampVisitor visitor(root.size());
    const bool finished = walker.walk(root, visitor).end == TreeWalker::End::Finished;
    // The walker looks at the token every few thousand entries; a stop that came before the end
    // of a small tree must not pass for a whole summary either.
    if (!finished || (cancellation && cancellation->isCancelled()))
        return std::nullopt;
    return visitor.result();
}

}  // namespace Fingerprint
