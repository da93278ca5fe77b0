#include "scan/KnownLocations.h"

#include <QStringList>

namespace KnownLocations {

bool isInSyncedHomeFolder(const QString& path, const QString& home)
{
    static const QStringList syncedFolders = {
        QStringLiteral("Google Drive"), QStringLiteral("My Drive"), QStringLiteral("Box"),
        QStringLiteral("Box Sync"), QStringLiteral("MEGA"), QStringLiteral("pCloud Drive"),
        QStringLiteral("Yandex.Disk"), QStringLiteral("Yandex.Disk.localized"),
        QStringLiteral("Nextcloud"), QStringLiteral("ownCloud"), QStringLiteral("Sync"),
        QStringLiteral("Creative Cloud Files"),
    };
    const QString prefix = home + QLatin1Char('/');
    if (!path.startsWith(prefix))
        return false;
    const QString first = path.mid(prefix.size()).section(QLatin1Char('/'), 0, 0);
    return syncedFolders.contains(first) || first.startsWith(QLatin1String("Dropbox"))
        || first.startsWith(QLatin1String("OneDrive"));
}

}  // namespace KnownLocations
