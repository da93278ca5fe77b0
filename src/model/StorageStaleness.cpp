#include "model/StorageStaleness.h"

#include "vocabulary/PathRules.h"

void StorageStaleness::noteGone(const QStringList& paths)
{
    if (paths.isEmpty())
        m_elsewhere = true;
    m_gone.append(paths);
}

void StorageStaleness::noteGrown(const QString& path)
{
    m_grown.append(path);
}

void StorageStaleness::measuredAgain(const QString& folder)
{
    const auto inside = [&folder](const QString& path) { return PathRules::isAtOrBelow(path, folder); };
    m_gone.removeIf(inside);
    m_grown.removeIf(inside);
}
