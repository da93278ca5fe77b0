#include "vocabulary/ScanFilter.h"

#include "vocabulary/AllowedPlace.h"
#include "vocabulary/PathRules.h"

#include <algorithm>

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

bool ScanFilter::isOnSafeList(const CleanupItem& item, const QSet<QString>& safeItemIds,
                              const QStringList& protectedPaths)
{
    if (safeItemIds.contains(item.id))
        return true;
    const auto isProtected = [&](const QString& path) {
        return std::any_of(protectedPaths.begin(), protectedPaths.end(),
                           [&](const QString& protectedPath) { return isAtOrBelow(path, protectedPath); });
    };
    if (item.projectPath && isProtected(*item.projectPath))
        return true;
    const QStringList paths = item.removal.paths();
    return std::any_of(paths.begin(), paths.end(), isProtected);
}

bool ScanFilter::holdsSafePath(const QString& path) const
{
    return std::any_of(m_protectedPaths.begin(), m_protectedPaths.end(),
                       [&](const QString& protectedPath) { return protectedPath != path && isAtOrBelow(protectedPath, path); });
}

bool ScanFilter::drops(const CleanupItem& item) const
{
    if (isOnSafeList(item, m_safeItemIds, m_protectedPaths))
        return true;
    const QStringList paths = item.removal.paths();
    return std::any_of(paths.begin(), paths.end(), [&](const QString& path) { return isICloudPath(path); });
}

QList<CleanupItem> ScanFilter::shown(const QList<CleanupItem>& items, const QStringList& scanFolders) const
{
    return AllowedPlace::lockedOutside(kept(items), m_home, scanFolders);
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
