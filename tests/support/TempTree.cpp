#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

TempTree::TempTree() : m_root(QFileInfo(m_dir.path()).canonicalFilePath()) {}

QString TempTree::path(const QString& relative) const
{
    return relative.isEmpty() ? m_root : m_root + QLatin1Char('/') + relative;
}

QString TempTree::dir(const QString& relative) const
{
    const QString absolute = path(relative);
    QDir().mkpath(absolute);
    return absolute;
}

QString TempTree::file(const QString& relative, qint64 size, char fill) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile out(absolute);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot create %s", qPrintable(absolute));
    const QByteArray chunk(static_cast<int>(std::min<qint64>(size, 1 << 20)), fill);
    for (qint64 left = size; left > 0; left -= chunk.size())
        out.write(chunk.constData(), std::min<qint64>(left, chunk.size()));
    return absolute;
}

QString TempTree::file(const QString& relative, const QByteArray& content) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    QFile out(absolute);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("cannot create %s", qPrintable(absolute));
    out.write(content);
    return absolute;
}

QString TempTree::sparseFile(const QString& relative, qint64 size) const
{
    const QString absolute = file(relative, 0);
    if (::truncate(QFile::encodeName(absolute).constData(), size) != 0)
        qFatal("cannot size %s", qPrintable(absolute));
    return absolute;
}

QString TempTree::symlink(const QString& relative, const QString& target) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(absolute).constData()) != 0)
        qFatal("cannot link %s", qPrintable(absolute));
    return absolute;
}

QString TempTree::hardlink(const QString& relative, const QString& existingRelative) const
{
    const QString absolute = path(relative);
    QDir().mkpath(QFileInfo(absolute).path());
    if (::link(QFile::encodeName(path(existingRelative)).constData(), QFile::encodeName(absolute).constData()) != 0)
        qFatal("cannot hard-link %s", qPrintable(absolute));
    return absolute;
}

void TempTree::setTimes(const QString& relative, qint64 secondsSinceEpoch) const
{
    const struct timespec times[2] = {{secondsSinceEpoch, 0}, {secondsSinceEpoch, 0}};
    ::utimensat(AT_FDCWD, QFile::encodeName(path(relative)).constData(), times, AT_SYMLINK_NOFOLLOW);
}
