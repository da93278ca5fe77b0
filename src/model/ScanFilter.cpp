#include "model/ScanFilter.h"

#include "model/PathRules.h"

using PathRules::isAtOrBelow;

ScanFilter::ScanFilter(QString home, QSet<QString> safeItemIds, QStringList protectedPaths)
    : m_home(std::move(home)), m_safeItemIds(std::move(safeItemIds)),
      m_protectedPaths(std::move(protectedPaths)),
      m_libraryPrefix(m_home.toLower() + QStringLiteral("/library/"))
{
    for (const QString& location : iCloudLocations())
        m_iCloudPaths.append(m_home + QLatin1Char('/') + location);
}

const QStringList& ScanFilter::iCloudLocations()
{
    static const QStringList locations = {
        QStringLiteral("Library/Caches/CloudKit"),
        QStringLiteral("Library/Caches/com.apple.bird"),
        QStringLiteral("Library/Caches/com.apple.cloudd"),
        QStringLiteral("Library/Caches/com.apple.cloudkit"),
        QStringLiteral("Library/Caches/com.apple.FileProvider"),
        QStringLiteral("Library/Application Support/CloudDocs"),
        QStringLiteral("Library/Application Support/FileProvider"),
        QStringLiteral("Library/Mobile Documents"),
        QStringLiteral("Library/CloudStorage"),
        QStringLiteral("Library/Daemon Containers"),
    };
    return locations;
}

const QStringList& ScanFilter::iCloudWords()
{
    static const QStringList words = {
        QStringLiteral("clouddocs"), QStringLiteral("fileprovider"), QStringLiteral("cloudkit"),
        QStringLiteral("com.apple.bird"), QStringLiteral("com.apple.cloudd"),
    };
    return words;
}

bool ScanFilter::drops(const CleanupItem& item) const
{
    if (m_safeItemIds.contains(item.id))
        return true;
    if (item.projectPath && isProtected(*item.projectPath))
        return true;
    for (const QString& path : item.removal.paths()) {
        if (isProtected(path) || isICloudPath(path))
            return true;
    }
    return false;
}

QList<CleanupItem> ScanFilter::kept(const QList<CleanupItem>& items) const
{
    QList<CleanupItem> result;
    for (const CleanupItem& item : items) {
        if (!drops(item))
            result.append(item);
    }
    return result;
}

bool ScanFilter::isProtected(const QString& path) const
{
    for (const QString& protectedPath : m_protectedPaths) {
        if (isAtOrBelow(path, protectedPath))
            return true;
    }
    return false;
}

bool ScanFilter::isICloudPath(const QString& path) const
{
    for (const QString& location : m_iCloudPaths) {
        if (isAtOrBelow(path, location))
            return true;
    }
    const QString lower = path.toLower();
    if (!lower.startsWith(m_libraryPrefix))
        return false;
    for (const QString& word : iCloudWords()) {
        if (lower.contains(word))
            return true;
    }
    return false;
}
