#include "machinery/Fingerprint.h"

#include "platform/Platform.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fts.h>
#include <initializer_list>
#include <sys/stat.h>

namespace Fingerprint {

namespace {

constexpr int cancellationInterval = 256;

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
class Walk {
public:
    Walk(const QByteArray& root, const CancellationToken* cancellation)
        : m_rootLength(root.size()), m_cancellation(cancellation) {}

    bool visit(const FTSENT* entry);
    void addUnreadable() { ++m_stamp.unreadable; }
    const TreeStamp& result() const { return m_stamp; }

private:
    void add(const QByteArray& relativePath, const struct stat& info);
    bool isCancelled();

    qsizetype m_rootLength;
    const CancellationToken* m_cancellation;
    TreeStamp m_stamp;
    int m_sinceCancellationCheck = 0;
};

bool Walk::isCancelled()
{
    if (!m_cancellation || ++m_sinceCancellationCheck < cancellationInterval)
        return false;
    m_sinceCancellationCheck = 0;
    return m_cancellation->isCancelled();
}

// False when the walk must stop.
bool Walk::visit(const FTSENT* entry)
{
    if (entry->fts_info == FTS_DP)
        return true;
    const QByteArray relativePath = QByteArray(entry->fts_path).mid(m_rootLength);
    switch (entry->fts_info) {
    case FTS_NS:
    case FTS_ERR:
        ++m_stamp.unreadable;
        break;
    case FTS_DNR:
        ++m_stamp.unreadable;
        add(relativePath, *entry->fts_statp);
        break;
    default:
        add(relativePath, *entry->fts_statp);
    }
    return !isCancelled();
}

void Walk::add(const QByteArray& relativePath, const struct stat& info)
{
    m_stamp.layout += entryHash(relativePath, {kindOf(info.st_mode)});
    m_stamp.statusStamps += entryHash(relativePath, {Platform::statusChangeNanoseconds(info)});
    m_stamp.latestChange = std::max(m_stamp.latestChange, qint64(info.st_mtime));
    if (!S_ISREG(info.st_mode))
        return;
    ++m_stamp.files;
    m_stamp.bytes += info.st_size;
    m_stamp.stamps += entryHash(relativePath, {qint64(info.st_size), Platform::modificationNanoseconds(info)});
}

// Finder writes ".DS_Store" files into folders it shows; only such a file is noise. A folder or
// a link of that name is someone's data like any other.
bool isIgnored(const FTSENT* entry)
{
    return entry->fts_info == FTS_F && std::strcmp(entry->fts_name, ".DS_Store") == 0;
}

}  // namespace

std::optional<TreeStamp> compute(const QString& path, const CancellationToken* cancellation)
{
    QByteArray root = QFile::encodeName(path);
    while (root.size() > 1 && root.endsWith('/'))
        root.chop(1);  // so relative paths read alike for "a/" and "a"
    char* roots[] = {root.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree)
        return TreeStamp{.unreadable = 1};
    Walk walk(root, cancellation);
    bool stopped = false;
    errno = 0;
    while (FTSENT* entry = ::fts_read(tree)) {
        if (isIgnored(entry))
            continue;
        if (!walk.visit(entry)) {
            stopped = true;
            break;
        }
    }
    if (!stopped && errno != 0)
        walk.addUnreadable();  // the traversal itself broke off
    ::fts_close(tree);
    if (stopped)
        return std::nullopt;
    return walk.result();
}

}  // namespace Fingerprint
