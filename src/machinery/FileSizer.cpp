#include "machinery/FileSizer.h"

#include "machinery/ScanProgress.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <fts.h>
#include <sys/stat.h>

namespace FileSizer {

namespace {

constexpr qint64 progressBatch = 4096;

// One measurement in progress: the traversal, the sums and the hard links already counted.
class Measuring {
public:
    Measuring(ScanProgress* progress, const CancellationToken* cancellation)
        : m_progress(progress), m_cancellation(cancellation) {}

    Measurement run(const QString& path);

private:
    bool traverse(FTS* tree);
    void visit(const FTSENT* entry);
    void addItem(const struct stat& info);
    void addDirectory(const struct stat& info);
    void addUnreadable(const FTSENT* entry);
    bool isRepeatedHardLink(const struct stat& info);
    bool countEntry();
    void publishRemainder() const;

    ScanProgress* m_progress;
    const CancellationToken* m_cancellation;
    Measurement m_result;
    QSet<FileKey> m_linkedFiles;
    qint64 m_entries = 0;
    dev_t m_device = 0;
};

Measurement Measuring::run(const QString& path)
{
    QByteArray encoded = QFile::encodeName(path);
    char* roots[] = {encoded.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree) {
        m_result.unreadable = 1;
        m_result.complete = false;
        return m_result;
    }
    const bool finished = traverse(tree);
    const int traversalError = errno;
    ::fts_close(tree);
    publishRemainder();
    if (!finished) {
        ++m_result.unreadable;
        m_result.complete = false;
    } else if (traversalError != 0) {
        ++m_result.unreadable;
        m_result.complete = m_result.complete && m_entries > 0;
    }
    return m_result;
}

// Returns false when cancelled; otherwise errno tells whether the traversal ended cleanly.
bool Measuring::traverse(FTS* tree)
{
    for (;;) {
        errno = 0;
        FTSENT* entry = ::fts_read(tree);
        if (!entry)
            return true;
        if (entry->fts_info == FTS_DP)
            continue;
        if (entry->fts_level == FTS_ROOTLEVEL && entry->fts_statp)
            m_device = entry->fts_statp->st_dev;
        if (entry->fts_info == FTS_D && entry->fts_statp->st_dev != m_device) {
            ::fts_set(tree, entry, FTS_SKIP);  // a mount point: its blocks belong to another volume
            continue;
        }
        if (!countEntry())
            return false;
        visit(entry);
    }
}

void Measuring::visit(const FTSENT* entry)
{
    switch (entry->fts_info) {
    case FTS_F:
    case FTS_SL:
    case FTS_SLNONE:
    case FTS_DEFAULT:
        if (!isRepeatedHardLink(*entry->fts_statp))
            addItem(*entry->fts_statp);
        return;
    case FTS_D:
        addDirectory(*entry->fts_statp);
        return;
    case FTS_DNR:
    case FTS_ERR:
    case FTS_NS:
        addUnreadable(entry);
        return;
    default:
        return;  // a directory cycle: already counted where it was first met
    }
}

void Measuring::addItem(const struct stat& info)
{
    m_result.bytes += static_cast<qint64>(info.st_blocks) * 512;
    if (S_ISREG(info.st_mode))
        m_result.logicalBytes += info.st_size;
    ++m_result.files;
    m_result.latestChange = std::max({m_result.latestChange, static_cast<qint64>(info.st_mtime),
                                      static_cast<qint64>(info.st_ctime)});
}

void Measuring::addDirectory(const struct stat& info)
{
    m_result.bytes += static_cast<qint64>(info.st_blocks) * 512;
    m_result.latestChange = std::max(m_result.latestChange, static_cast<qint64>(info.st_mtime));
}

void Measuring::addUnreadable(const FTSENT* entry)
{
    ++m_result.unreadable;
    if (entry->fts_level == FTS_ROOTLEVEL)
        m_result.complete = false;
}

bool Measuring::isRepeatedHardLink(const struct stat& info)
{
    if (info.st_nlink < 2)
        return false;
    const FileKey key{static_cast<qint32>(info.st_dev), static_cast<quint64>(info.st_ino)};
    if (m_linkedFiles.contains(key))
        return true;
    m_linkedFiles.insert(key);
    return false;
}

// Counts one entry; at every full batch publishes it and answers whether to go on.
bool Measuring::countEntry()
{
    if (++m_entries % progressBatch != 0)
        return true;
    if (m_progress)
        m_progress->addEntries(progressBatch);
    return !(m_cancellation && m_cancellation->isCancelled());
}

void Measuring::publishRemainder() const
{
    if (m_progress && m_entries % progressBatch != 0)
        m_progress->addEntries(m_entries % progressBatch);
}

}  // namespace

Measurement measure(const QString& path, ScanProgress* progress, const CancellationToken* cancellation)
{
    return Measuring(progress, cancellation).run(path);
}

}  // namespace FileSizer
