#pragma once

#include "vocabulary/CleanupItem.h"

#include <QSet>
#include <QString>
#include <QStringList>

// The rules that keep protected things out of every list: the Safe List, protected paths,
// and the iCloud places that are never offered. Shared by the app's model and the report tool.
class ScanFilter {
public:
    ScanFilter(QString home, QSet<QString> safeItemIds, QStringList protectedPaths);
    // Same home and Safe List: the two drop and lock the same rows.
    bool operator==(const ScanFilter& other) const
    {
        return m_home == other.m_home && m_safeItemIds == other.m_safeItemIds && m_protectedPaths == other.m_protectedPaths;
    }

    // The Safe List's own rule: the item's id is on it, or its project or one of its paths is at
    // or below a protected path. The one predicate behind both `drops` and
    // `SettingsStore::isSafe`. The iCloud rule is deliberately not part of it: iCloud places are
    // never offered by any scan, so they never reach a list the Safe List could clean up, and
    // the Safe List screen must not claim to hold items the person never added.
    static bool isOnSafeList(const CleanupItem& item, const QSet<QString>& safeItemIds,
                             const QStringList& protectedPaths);

    // isOnSafeList with this filter's Safe List.
    bool protects(const CleanupItem& item) const { return isOnSafeList(item, m_safeItemIds, m_protectedPaths); }
    // Whether something on the Safe List lies strictly inside the folder `path`: moving the
    // folder would take it along.
    bool holdsSafePath(const QString& path) const;

    // True when the item must not be shown: on the Safe List, or in a never-offered iCloud place.
    bool drops(const CleanupItem& item) const;
    // The items that may be shown, in their order.
    QList<CleanupItem> kept(const QList<CleanupItem>& items) const;
    // What a list shows of a scan's items, for the app and the report tool alike: the kept ones,
    // those that lie where removal may not reach locked with the reason (`scanFolders` decide
    // which other disks count).
    QList<CleanupItem> shown(const QList<CleanupItem>& items, const QStringList& scanFolders) const;

    // The home folder's never-offered iCloud places, relative to the home folder.
    static const QStringList& iCloudLocations();
    // Words that, inside the Library, mark iCloud data.
    static const QStringList& iCloudWords();

private:
    bool isICloudPath(const QString& path) const;

    QString m_home;
    QSet<QString> m_safeItemIds;
    QStringList m_protectedPaths;
    QStringList m_iCloudPaths;  // absolute
    QString m_libraryPrefix;    // lower-cased home + "/library/"
};
