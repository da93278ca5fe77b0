#include "vocabulary/ItemName.h"

#include "vocabulary/PathRules.h"

#include <QCoreApplication>

namespace ItemName {

QString of(const CleanupItem& item, const QString& home)
{
    const auto trash = item.removal.as<Removal::Trash>();
    if (!item.projectPath || !trash || trash->targets.size() != 1)
        return item.title;
    const QString path = trash->targets.first().path;
    if (path == *item.projectPath || !PathRules::isAtOrBelow(path, *item.projectPath))
        return item.title;
    return inFolder(path, home);
}

QString inFolder(const QString& path, const QString& home)
{
    const QString folder = path.section(QLatin1Char('/'), 0, -2);
    //: How a sheet names a folder or file by where it is; %1 is its name, %2 the folder holding it, like "~/Projects/app"
    return QCoreApplication::translate("ItemName", "%1 in %2")
        .arg(path.section(QLatin1Char('/'), -1), PathRules::withTilde(folder.isEmpty() ? QStringLiteral("/") : folder, home));
}

}  // namespace ItemName
