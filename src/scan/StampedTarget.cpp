#include "scan/StampedTarget.h"

#include "machinery/Fingerprint.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

#include <sys/stat.h>

namespace StampedTarget {

std::optional<FileTarget> of(const QString& path, const CancellationToken* cancellation)
{
    std::optional<FileTarget> target = FileTarget::make(path);
    const auto info = FileStatus::of(path);
    if (!target || !info)
        return std::nullopt;
    if (S_ISREG(info->st_mode))
        target->content = FileTarget::ContentStamp::of(*info);
    if (S_ISDIR(info->st_mode)) {
        target->tree = Fingerprint::compute(path, cancellation);
        if (!target->tree)
            return std::nullopt;
    }
    return target;
}

}  // namespace StampedTarget
