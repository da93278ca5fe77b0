#include "actions/MovedTargets.h"

#include <QSet>

#include <mutex>

namespace MovedTargets {

namespace {

// Path and identity only: the same object listed by two scanners may carry different guards. The
// birth time belongs to the identity: a file made anew at the path may get the inode back, and
// must not pass for the one that already went.
struct Key {
    QString path;
    qint32 device = 0;
    quint64 inode = 0;
    std::optional<qint64> birth;
    bool operator==(const Key&) const = default;
};

size_t qHash(const Key& key, size_t seed = 0)
{
    return qHashMulti(seed, key.path, key.device, key.inode, key.birth.value_or(0));
}

Key keyOf(const FileTarget& target)
{
    return {target.path, target.device, target.inode, target.birth};
}

std::mutex& setMutex()
{
    static std::mutex mutex;
    return mutex;
}

QSet<Key>& moved()  // guarded by setMutex()
{
    static QSet<Key> set;
    return set;
}

}  // namespace

void record(const FileTarget& target)
{
    std::lock_guard lock(setMutex());
    moved().insert(keyOf(target));
}

bool contains(const FileTarget& target)
{
    std::lock_guard lock(setMutex());
    return moved().contains(keyOf(target));
}

}  // namespace MovedTargets
