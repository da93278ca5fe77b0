#pragma once

#include "model/CleanupItem.h"

#include <QSet>
#include <QString>
#include <QStringList>

// The rules that keep protected things out of every list: the Safe List, protected paths,
// and the iCloud places that are never offered. Shared by the app's model and the report tool.
class ScanFilter {
public:
    ScanFilter(QString home, QSet<QString> safeItemIds, QStringList protectedPaths);

    // True when the item must not be shown.
    bool drops(const CleanupItem& item) const;
    // The items that may be shown, in their order.
    QList<CleanupItem> kept(const QList<CleanupItem>& items) const;

    // The home folder's never-offered iCloud places, relative to the home folder.
    static const QStringList& iCloudLocations();
    // Words that, inside the Library, mark iCloud data.
    static const QStringList& iCloudWords();

private:
    bool isProtected(const QString& path) const;
    bool isICloudPath(const QString& path) const;

    QString m_home;
    QSet<QString> m_safeItemIds;
    QStringList m_protectedPaths;
    QStringList m_iCloudPaths;  // absolute
    QString m_libraryPrefix;    // lower-cased home + "/library/"
};
