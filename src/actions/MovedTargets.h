#pragma once

#include "vocabulary/FileTarget.h"

#include <QSet>
#include <QString>

#include <mutex>
#include <optional>

// The file targets one cleanup (or one move) has sent to the Trash, so that a later item of the
// same cleanup sharing one of them (it went with an earlier item) reads as done rather than as
// vanished. Held by the RemovalEnvironment the cleanup was prepared with, so a new cleanup starts
// with none. Thread-safe: the set is guarded by a mutex.
class MovedTargets {
public:
    void record(const FileTarget& target);
    // True when an object with the target's path and identity went to the Trash earlier.
    [[nodiscard]] bool contains(const FileTarget& target) const;

private:
    // Path and identity only: the same object listed by two scanners may carry different guards.
    struct Key {
        QString path;
        qint32 device = 0;
        quint64 inode = 0;
        std::optional<qint64> birth;
        bool operator==(const Key&) const = default;
        friend size_t qHash(const Key& key, size_t seed = 0)
        {
            return qHashMulti(seed, key.path, key.device, key.inode, key.birth.value_or(0));
        }
    };
    static Key keyOf(const FileTarget& target);

    mutable std::mutex m_mutex;
    QSet<Key> m_moved;  // guarded by m_mutex
};
