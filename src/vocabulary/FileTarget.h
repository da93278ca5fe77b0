#pragma once

#include "vocabulary/HashCombine.h"
#include "vocabulary/TreeStamp.h"

#include <QString>
#include <QStringList>

#include <optional>

// One file-system object to be moved to the Trash, with the guards the remover checks just
// before it acts. Plain value; the guards default to off.
struct FileTarget {
    // A regular file's size and modification time when it was found.
    struct ContentStamp {
        qint64 size = 0;
        qint64 modified = 0;  // nanoseconds since 1970
        bool operator==(const ContentStamp&) const = default;
    };

    QString path;
    qint32 device = 0;
    quint64 inode = 0;
    std::optional<ContentStamp> content;
    std::optional<TreeStamp> tree;
    bool quietForADay = false;
    bool projectQuietForADay = false;
    std::optional<QString> gitLockFile;
    QStringList usedWhileRunning;

    // lstat()s the path (a final symbolic link is not followed); absent when that fails,
    // so a vanished path never becomes a target.
    static std::optional<FileTarget> make(const QString& path);
    // The same, refusing removal while any of the named programs runs.
    static std::optional<FileTarget> watching(const QString& path, const QStringList& programs);

    bool operator==(const FileTarget&) const = default;
};

inline size_t qHash(const FileTarget::ContentStamp& s, size_t seed = 0)
{
    return HashCombine(seed).add(s.size).add(s.modified).result();
}

inline size_t qHash(const FileTarget& t, size_t seed = 0)
{
    return HashCombine(seed).add(t.path).add(t.device).add(t.inode).add(t.content).add(t.tree)
        .add(t.quietForADay).add(t.projectQuietForADay).add(t.gitLockFile)
        .add(t.usedWhileRunning).result();
}
