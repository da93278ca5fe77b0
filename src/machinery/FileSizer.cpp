#include "machinery/FileSizer.h"

#include "machinery/SplitWalk.h"

#include <QFile>

#include <algorithm>

namespace FileSizer {

namespace {

// The sums of one measurement, taken as the walk passes; hard links come once from the walker.
class Sizing : public SplittableVisitor {
public:
    Measurement result;

    std::unique_ptr<SplittableVisitor> fork() const override { return std::make_unique<Sizing>(); }

    void join(SplittableVisitor& later) override
    {
        const Measurement& part = static_cast<Sizing&>(later).result;
        result.bytes += part.bytes;
        result.logicalBytes += part.logicalBytes;
        result.files += part.files;
        result.unreadable += part.unreadable;
        result.complete = result.complete && part.complete;
        result.latestChange = std::max(result.latestChange, part.latestChange);
    }

    Verdict enterFolder(const TreeEntry& entry) override
    {
        const struct stat& info = entry.status();
        result.bytes += static_cast<qint64>(info.st_blocks) * 512;
        result.latestChange = std::max(result.latestChange, static_cast<qint64>(info.st_mtime));
        return Verdict::Enter;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        const struct stat& info = entry.status();
        result.bytes += static_cast<qint64>(info.st_blocks) * 512;
        if (S_ISREG(info.st_mode))
            result.logicalBytes += info.st_size;
        ++result.files;
        result.latestChange = std::max({result.latestChange, static_cast<qint64>(info.st_mtime),
                                        static_cast<qint64>(info.st_ctime)});
        return Verdict::Enter;
    }

    void problem(const TreeEntry& entry, TreeProblem, int) override
    {
        ++result.unreadable;
        if (entry.depth() == 0)
            result.complete = false;
    }
};

}  // namespace

Measurement measure(const QString& path, ScanProgress* progress, const CancellationToken* cancellation)
{
    SplitWalk::Options options;
    options.walker.progress = progress;
    options.walker.cancellation = cancellation;
    options.walker.hardLinksOnce = true;
    Sizing sizing;
    if (SplitWalk(options).walk(QFile::encodeName(path), sizing).end == TreeWalker::End::Cancelled) {
        ++sizing.result.unreadable;
        sizing.result.complete = false;
    }
    return sizing.result;
}

}  // namespace FileSizer
