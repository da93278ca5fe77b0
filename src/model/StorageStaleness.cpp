#include "model/StorageStaleness.h"

#include "vocabulary/PathRules.h"

void StorageStaleness::note(const QStringList& paths)
{
    if (paths.isEmpty())
        m_elsewhere = true;
    m_paths.append(paths);
}

void StorageStaleness::measuredAgain(const QString& folder)
{
    m_paths.removeIf([&folder](const QString& path) { return PathRules::isAtOrBelow(path, folder); });
}
