#include "storage/StorageBucket.h"

#include "platform/Platform.h"

#include <QCoreApplication>

namespace StorageBuckets {

const std::array<StorageBucket, count>& allCases()
{
    using enum StorageBucket;
    static const std::array<StorageBucket, count> cases{
        apps, developer, photos, videos, music, documents, archives, deviceBackups, mail, appData, trash, other};
    return cases;
}

QString rawValue(StorageBucket bucket)
{
    static const std::array<const char*, count> names{
        "apps", "developer", "photos", "videos", "music", "documents", "archives", "deviceBackups", "mail",
        "appData", "trash", "other"};
    return QString::fromLatin1(names.at(static_cast<size_t>(bucket)));
}

std::optional<StorageBucket> fromRawValue(const QString& raw)
{
    for (StorageBucket bucket : allCases()) {
        if (rawValue(bucket) == raw)
            return bucket;
    }
    return std::nullopt;
}

QString title(StorageBucket bucket)
{
    switch (bucket) {
    //: Storage kind: applications
    case StorageBucket::apps: return QCoreApplication::translate("StorageBucket", "Applications");
    //: Storage kind: developer tools' data, build folders and package caches
    case StorageBucket::developer: return QCoreApplication::translate("StorageBucket", "Developer");
    //: Storage kind: pictures and photo libraries
    case StorageBucket::photos: return QCoreApplication::translate("StorageBucket", "Photos");
    //: Storage kind: movies and video projects
    case StorageBucket::videos: return QCoreApplication::translate("StorageBucket", "Videos");
    //: Storage kind: music, audio and the music and TV libraries
    case StorageBucket::music: return QCoreApplication::translate("StorageBucket", "Music");
    //: Storage kind: pdf, text, office documents, e-books
    case StorageBucket::documents: return QCoreApplication::translate("StorageBucket", "Documents");
    //: Storage kind: zip, dmg, pkg, ...
    case StorageBucket::archives: return QCoreApplication::translate("StorageBucket", "Archives & Disk Images");
    //: Storage kind: backups of iPhones and iPads made on this computer
    case StorageBucket::deviceBackups: return QCoreApplication::translate("StorageBucket", "iPhone & iPad Backups");
    //: Storage kind: Mail and Messages data
    case StorageBucket::mail: return QCoreApplication::translate("StorageBucket", "Mail & Messages");
    //: Storage kind: app data in the Library
    case StorageBucket::appData: return QCoreApplication::translate("StorageBucket", "App Data & Caches");
    //: Storage kind: the macOS Trash
    case StorageBucket::trash: return QCoreApplication::translate("StorageBucket", "Trash");
    //: Storage kind: files of any other type
    case StorageBucket::other: return QCoreApplication::translate("StorageBucket", "Other Files");
    }
    return {};
}

bool hasSubfolders(StorageBucket bucket)
{
    using enum StorageBucket;
    return bucket == photos || bucket == videos || bucket == music || bucket == documents || bucket == archives;
}

QString remainderTitle()
{
    if (Platform::desktop() == Platform::Desktop::finder)
        //: Storage breakdown: the used space the analysis could not attribute (the system, other accounts, protected data)
        return QCoreApplication::translate("StorageBucket", "macOS and System Data");
    //: Storage breakdown on Linux: the used space the analysis could not attribute (the system, other accounts, protected data)
    return QCoreApplication::translate("StorageBucket", "System and Other Data");
}

}  // namespace StorageBuckets
