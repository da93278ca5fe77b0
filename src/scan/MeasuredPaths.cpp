#include "scan/MeasuredPaths.h"

#include "machinery/FileSizer.h"

#include <algorithm>

MeasuredPaths MeasuredPaths::of(const QStringList& paths, const ScanContext& context)
{
    MeasuredPaths measured;
    for (const QString& path : paths) {
        measured.stopped = context.isCancelled();
        if (measured.stopped)
            return measured;
        auto target = FileTarget::make(path);
        if (!target)
            continue;
        context.progress->setCurrentFolder(path);
        const FileSizer::Measurement size = FileSizer::measure(path, context.progress.get(), &context.cancellation);
        measured.stopped = context.isCancelled();
        measured.bytes += size.bytes;
        measured.latestChange = std::max(measured.latestChange, size.latestChange);
        measured.targets.append(*target);
    }
    return measured;
}
