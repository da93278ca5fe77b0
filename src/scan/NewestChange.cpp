#include "scan/NewestChange.h"

#include "machinery/TreeWalker.h"

#include <QFile>

#include <algorithm>

namespace NewestChange {

namespace {

// The newest modification time of every entry met, the root included; Stop past `limit`.
class NewestVisitor : public TreeVisitor {
public:
    explicit NewestVisitor(qint64 limit) : m_limit(limit) {}

    Verdict enterFolder(const TreeEntry& entry) override { return take(entry); }
    Verdict visitItem(const TreeEntry& entry) override { return take(entry); }

    qint64 newest() const { return m_newest; }

private:
    Verdict take(const TreeEntry& entry)
    {
        if (++m_entries > m_limit)
            return Verdict::Stop;
        m_newest = std::max(m_newest, qint64(entry.status().st_mtime));
        return Verdict::Enter;
    }

    qint64 m_limit;
    qint64 m_entries = 0;
    qint64 m_newest = 0;
};

}  // namespace

std::optional<qint64> of(const QString& path, const CancellationToken* cancellation, qint64 limit)
{
    TreeWalker::Options options;
    options.cancellation = cancellation;
    TreeWalker walker(options);
    NewestVisitor visitor(limit);
    const TreeWalker::Result result = walker.walk(QFile::encodeName(path), visitor);
    if (result.end != TreeWalker::End::Finished || visitor.newest() <= 0)
        return std::nullopt;
    return visitor.newest();
}

}  // namespace NewestChange
