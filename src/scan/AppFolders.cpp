#include "scan/AppFolders.h"

QStringList AppFolders::forUninstaller(const QString& home, bool everything) const
{
    QStringList folders = {applications, personal(home)};
    if (everything)
        folders.append(systemApplications);
    return folders;
}

QStringList AppFolders::forInstalledIdentifiers(const QString& home) const
{
    return {applications, personal(home), systemApplications, coreServices};
}
