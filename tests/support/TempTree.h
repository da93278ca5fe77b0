#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <optional>

// A folder tree built for one test in a temporary folder: files of chosen sizes and times,
// folders, links. Paths given to it are relative to its root. Removed with the object.
class TempTree {
public:
    TempTree();
    // In `parentFolder` (a file system of its own, say) instead of the temporary folder.
    explicit TempTree(const QString& parentFolder);

    QString root() const { return m_root; }
    QString path(const QString& relative) const;

    // Creates the folder and its parents; returns the absolute path.
    QString dir(const QString& relative) const;
    // Writes a file of `size` bytes (parents created); returns the absolute path.
    QString file(const QString& relative, qint64 size = 0, char fill = 'x') const;
    QString file(const QString& relative, const QByteArray& content) const;
    // A file of `size` bytes that takes no disk blocks (a hole), for size thresholds.
    QString sparseFile(const QString& relative, qint64 size) const;
    // A file whose `size` bytes are all allocated on disk but never written (fallocate), for
    // sizes as a scan counts them without the time to write them.
    QString allocatedFile(const QString& relative, qint64 size) const;
    QString symlink(const QString& relative, const QString& target) const;
    QString hardlink(const QString& relative, const QString& existingRelative) const;
    // A socket file as a server leaves it (bound, nobody listening), for endpoints a tool is given.
    QString socketFile(const QString& relative) const;
    // Sets modification and access time, seconds since 1970.
    void setTimes(const QString& relative, qint64 secondsSinceEpoch) const;

    // Runs `work` where permissions bind: in this process for an ordinary user; as root, in a
    // child process that became the user "nobody" (the tree is opened to it first), because
    // root reads every folder whatever its mode. Returns what `work` returned, or nothing when
    // the child could not drop its privileges or reach the tree.
    std::optional<QByteArray> runUnprivileged(const std::function<QByteArray()>& work) const;

private:
    QTemporaryDir m_dir;
    QString m_root;
};
