#include "vocabulary/SharedScanFolders.h"

#include <mutex>

namespace SharedScanFolders {

namespace {

std::mutex& listMutex()
{
    static std::mutex mutex;
    return mutex;
}

QStringList& published()  // guarded by listMutex()
{
    static QStringList list;
    return list;
}

}  // namespace

void publish(const QStringList& scanRoots)
{
    QStringList otherVolumes;
    for (const QString& root : scanRoots) {
        if (root.startsWith(QLatin1String("/Volumes/")))
            otherVolumes.append(root);
    }
    std::lock_guard lock(listMutex());
    published() = std::move(otherVolumes);
}

QStringList current()
{
    std::lock_guard lock(listMutex());
    return published();
}

}  // namespace SharedScanFolders
