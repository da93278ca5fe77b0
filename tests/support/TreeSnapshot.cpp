#include "support/TreeSnapshot.h"

#include <QDirIterator>
#include <QFile>

#include <sys/stat.h>

QMap<QString, QString> treeSnapshot(const QString& root)
{
    QMap<QString, QString> entries;
    QStringList paths{root};
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(it.next());
    for (const QString& path : paths) {
        const QString relative = path.mid(root.size());
        struct stat info {};
        if (::lstat(QFile::encodeName(path).constData(), &info) != 0) {
            entries.insert(relative, QStringLiteral("unreadable"));
            continue;
        }
        entries.insert(relative, QStringLiteral("mode %1 size %2 mtime %3.%4 ctime %5.%6 inode %7 links %8")
                                                  .arg(info.st_mode, 0, 8).arg(info.st_size)
                                                  .arg(info.st_mtim.tv_sec).arg(info.st_mtim.tv_nsec)
                                                  .arg(info.st_ctim.tv_sec).arg(info.st_ctim.tv_nsec)
                                                  .arg(info.st_ino).arg(info.st_nlink));
    }
    return entries;
}
