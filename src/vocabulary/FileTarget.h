#pragma once

#include "vocabulary/HashCombine.h"
#include "vocabulary/TreeStamp.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <sys/stat.h>

// One file-system object to be moved to the Trash, with the guards the remover checks just
// before it acts. Plain value; the guards default to off.
struct FileTarget {
    // A regular file's size, modification and status-change times when it was found. The
    // status-change time catches a same-size rewrite whose modification time was put back.
    struct ContentStamp {
        qint64 size = 0;
        qint64 modified = 0;              // nanoseconds since 1970
        std::optional<qint64> changed;    // nanoseconds since 1970; absent when not recorded
        // The stamp of the status record of a regular file.
        static ContentStamp of(const struct stat& info);
        bool operator==(const ContentStamp&) const = default;
    };

    QString path;
    qint32 device = 0;
    quint64 inode = 0;
    // Creation time in nanoseconds since 1970 where the file system keeps one: device and inode
    // alone take a deleted and recreated object (the inode handed out again) for the scanned one.
    std::optional<qint64> birth;
    std::optional<ContentStamp> content;
    std::optional<TreeStamp> tree;
    bool quietForADay = false;
    bool projectQuietForADay = false;
    std::optional<QString> gitLockFile;
    QStringList usedWhileRunning;

    // lstat()s the path (a final symbolic link is not followed) and records its identity with
    // its birth time; absent when that fails, so a vanished path never becomes a target.
    static std::optional<FileTarget> make(const QString& path);
    // The same, refusing removal while any of the named programs runs.
    static std::optional<FileTarget> watching(const QString& path, const QStringList& programs);

    // The one identity rule: whether `info`, the status of `name` in the open folder `folder`
    // (AT_FDCWD and a path will do) read without following a final link, shows this target's
    // object: same device, same inode and, where one was recorded, the same birth time.
    [[nodiscard]] bool isObject(int folder, const char* name, const struct stat& info) const;
    // The same for whatever `name` in `folder` is now; false when it can't be examined.
    [[nodiscard]] bool isObjectAt(int folder, const char* name) const;

    bool operator==(const FileTarget&) const = default;
};

inline size_t qHash(const FileTarget::ContentStamp& s, size_t seed = 0)
{
    return HashCombine(seed).add(s.size).add(s.modified).add(s.changed).result();
}

inline size_t qHash(const FileTarget& t, size_t seed = 0)
{
    return HashCombine(seed).add(t.path).add(t.device).add(t.inode).add(t.birth).add(t.content).add(t.tree)
        .add(t.quietForADay).add(t.projectQuietForADay).add(t.gitLockFile)
        .add(t.usedWhileRunning).result();
}
