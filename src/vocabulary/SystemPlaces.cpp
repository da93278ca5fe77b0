#include "vocabulary/SystemPlaces.h"

#include "platform/Platform.h"

#include <QFile>

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

}  // namespace SystemPlaces
