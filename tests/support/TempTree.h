#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A folder tree built for one test in a temporary folder: files of chosen sizes and times,
// folders, links. Paths given to it are relative to its root. Removed with the object.
class TempTree {
public:
    TempTree();

    QString root() const { return m_root; }
    QString path(const QString& relative) const;

    // Creates the folder and its parents; returns the absolute path.
    QString dir(const QString& relative) const;
    // Writes a file of `size` bytes (parents created); returns the absolute path.
    QString file(const QString& relative, qint64 size = 0, char fill = 'x') const;
    QString file(const QString& relative, const QByteArray& content) const;
    // A file of `size` bytes that takes no disk blocks (a hole), for size thresholds.
    QString sparseFile(const QString& relative, qint64 size) const;
    QString symlink(const QString& relative, const QString& target) const;
    QString hardlink(const QString& relative, const QString& existingRelative) const;
    // Sets modification and access time, seconds since 1970.
    void setTimes(const QString& relative, qint64 secondsSinceEpoch) const;

private:
    QTemporaryDir m_dir;
    QString m_root;
};
