#include "scan/StampedTarget.h"

#include "machinery/FileSizer.h"
#include "machinery/Fingerprint.h"
#include "vocabulary/FileStatus.h"

#include <sys/stat.h>

namespace StampedTarget {

std::optional<Measured> measured(const QString& path, const ScanContext& context)
{
    std::optional<FileTarget> target = FileTarget::make(path);
    const auto info = FileStatus::of(path);
    if (!target || !info)
        return std::nullopt;
    if (!S_ISDIR(info->st_mode)) {
        if (S_ISREG(info->st_mode))
            target->content = FileTarget::ContentStamp::of(*info);
        return Measured{*target, FileSizer::measure(path, context.progress.get(), &context.cancellation).bytes};
    }
    const std::optional<Fingerprint::Measured> walked =
        Fingerprint::measured(path, context.progress.get(), &context.cancellation);
    if (!walked)
        return std::nullopt;
    target->tree = walked->stamp;
    return Measured{*target, walked->size.bytes};
}

}  // namespace StampedTarget
