#pragma once

#include <sys/types.h>

// Collects, as they end, the processes this process adopted from a tool's tree (a Linux child
// subreaper adopts a tool's orphans; macOS gives them to launchd, so there is nothing to do).
// An adopted orphan nobody collects stays a zombie until this process exits. Thread-safe; keeps
// no state: one watcher thread per tool group that still has members when the tool has ended.
namespace OrphanReaper {

// Called right after a run collected its tool, whose id is also its process group's. When
// processes of that group are still our children, a detached thread waits for each to end
// and collects it, and ends itself once the group has none left.
void collectGroupAsItEnds(pid_t group);

}  // namespace OrphanReaper
