#include "actions/MovedTargets.h"

// The birth time belongs to the identity: a file made anew at the path may get the inode back,
// and must not pass for the one that already went.
MovedTargets::Key MovedTargets::keyOf(const FileTarget& target)
{
    return {target.path, target.device, target.inode, target.birth};
}

void MovedTargets::record(const FileTarget& target)
{
    std::lock_guard lock(m_mutex);
    m_moved.insert(keyOf(target));
}

bool MovedTargets::contains(const FileTarget& target) const
{
    std::lock_guard lock(m_mutex);
    return m_moved.contains(keyOf(target));
}
