#include "machinery/DockerScanRecord.h"

#include <mutex>

namespace {

std::mutex& recordMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::optional<DockerScanRecord>& latest()  // guarded by recordMutex()
{
    static std::optional<DockerScanRecord> record;
    return record;
}

}  // namespace

void DockerScanRecord::remember(const DockerScanRecord& record)
{
    std::lock_guard lock(recordMutex());
    latest() = record;
}

std::optional<DockerScanRecord> DockerScanRecord::last()
{
    std::lock_guard lock(recordMutex());
    return latest();
}
