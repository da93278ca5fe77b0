#include "machinery/FileSizer.h"

#include "machinery/Concurrency.h"
#include "machinery/SplitWalk.h"

#include <QFile>

#include <algorithm>
#include <numeric>
#include <utility>

namespace FileSizer {

void Measurement::addFolder(const struct stat& info)
{
    bytes += static_cast<qint64>(info.st_blocks) * 512;
    latestChange = std::max(latestChange, static_cast<qint64>(info.st_mtime));
}

void Measurement::addItem(const struct stat& info)
{
    bytes += static_cast<qint64>(info.st_blocks) * 512;
    if (S_ISREG(info.st_mode))
        logicalBytes += info.st_size;
    ++files;
    latestChange = std::max({latestChange, static_cast<qint64>(info.st_mtime), static_cast<qint64>(info.st_ctime)});
}

void Measurement::addProblem(int depth)
{
    ++unreadable;
    if (depth == 0)
        complete = false;
}

void Measurement::addStop()
{
    ++unreadable;
    complete = false;
}

Measurement& Measurement::operator+=(const Measurement& later)
{
    bytes += later.bytes;
    logicalBytes += later.logicalBytes;
    files += later.files;
    unreadable += later.unreadable;
    complete = complete && later.complete;
    latestChange = std::max(latestChange, later.latestChange);
    return *this;
}

namespace {

// The sums of one measurement, taken as the walk passes; hard links come once from the walker.
class Sizing : public SplittableVisitor {
public:
    Measurement result;

    std::unique_ptr<SplittableVisitor> fork() const override { return std::make_unique<Sizing>(); }
    void join(SplittableVisitor& later) override { result += static_cast<Sizing&>(later).result; }

    Verdict enterFolder(const TreeEntry& entry) override
    {
        result.addFolder(entry.status());
        return Verdict::Enter;
    }

    Verdict visitItem(const TreeEntry& entry) override
    {
        result.addItem(entry.status());
        return Verdict::Enter;
    }

    void problem(const TreeEntry& entry, TreeProblem, int) override { result.addProblem(entry.depth()); }
};

}  // namespace

Measurement measure(const QString& path, ScanProgress* progress, const CancellationToken* cancellation)
{
    SplitWalk::Options options;
    options.walker.progress = progress;
    options.walker.cancellation = cancellation;
    options.walker.hardLinksOnce = true;
    Sizing sizing;
    if (SplitWalk(options).walk(QFile::encodeName(path), sizing).end == TreeWalker::End::Cancelled)
        sizing.result.addStop();
    return sizing.result;
}

std::vector<std::optional<Measurement>> measureAll(const std::vector<QString>& paths, int atOnce,
                                                   ScanProgress* progress, const CancellationToken& cancellation)
{
    std::vector<size_t> indices(paths.size());
    std::iota(indices.begin(), indices.end(), size_t{0});
    const auto measured = Concurrency::mapOnOwnTables(indices, atOnce, cancellation, [&](size_t index) {
        return std::pair{index, measure(paths[index], progress, &cancellation)};
    });
    std::vector<std::optional<Measurement>> all(paths.size());
    for (const auto& [index, measurement] : measured)
        all[index] = measurement;
    return all;
}

}  // namespace FileSizer
