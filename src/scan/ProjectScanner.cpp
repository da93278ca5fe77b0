#include "scan/ProjectScanner.h"

#include "model/PathRules.h"

#include <QFileInfo>
#include <algorithm>

namespace {

QString expandedTilde(const QString& path, const QString& home)
{
    if (path == QLatin1String("~"))
        return home;
    if (path.startsWith(QLatin1String("~/")))
        return home + path.mid(1);
    return path;
}

bool liesInAny(const QString& path, const QStringList& folders)
{
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString& folder) { return PathRules::isAtOrBelow(path, folder); });
}

}  // namespace

QStringList ProjectScanner::distinctRoots(const QStringList& roots, const QString& home)
{
    QStringList cleaned;
    for (const QString& root : roots)
        cleaned.append(QDir::cleanPath(expandedTilde(root, home)));
    cleaned.sort();
    QStringList kept;
    for (const QString& root : std::as_const(cleaned)) {
        if (!liesInAny(root, kept))
            kept.append(root);
    }
    kept.removeIf([](const QString& root) { return !QFileInfo(root).isDir(); });
    return kept;
}
