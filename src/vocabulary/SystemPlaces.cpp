#include "vocabulary/SystemPlaces.h"

#include "platform/Platform.h"

#include <QFile>
#include <QStandardPaths>

namespace SystemPlaces {

QString trashFolder(const QString& home)
{
    if (Platform::desktop() == Platform::Desktop::finder)
        return home + QStringLiteral("/.Trash");
    // The freedesktop home trash follows XDG_DATA_HOME, whoever's home is being scanned.
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    const QString base = dataHome.isEmpty() ? home + QStringLiteral("/.local/share") : QFile::decodeName(dataHome);
    return base + QStringLiteral("/Trash/files");
}

QStringList systemTempFolders()
{
    if (Platform::desktop() == Platform::Desktop::finder) {
        QStringList folders = {QStringLiteral("/private/tmp")};
        if (const auto own = Platform::userTempFolder())
            folders.append(*own);
        return folders;
    }
    QStringList folders = {QStringLiteral("/tmp"), QStringLiteral("/var/tmp")};
    const QByteArray chosen = qgetenv("TMPDIR");
    if (!chosen.isEmpty())
        folders.append(QFile::decodeName(chosen));
    return folders;
}

QString appDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Dustlark");
}

}  // namespace SystemPlaces
