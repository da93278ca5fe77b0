#include "vocabulary/AllowedPlace.h"

#include "vocabulary/PathRules.h"

#include <QDir>

#include <algorithm>

namespace AllowedPlace {

namespace {

bool isStrictlyInside(const QString& path, const QString& folder)
{
    return !folder.isEmpty() && path != folder && PathRules::isAtOrBelow(path, folder);
}

// "..", "." and doubled slashes could lead a path that looks inside the home folder out of it.
bool isNormalAbsolute(const QString& path)
{
    return path.startsWith(QLatin1Char('/')) && QDir::cleanPath(path) == path;
}

}  // namespace

bool contains(const QString& path, const QString& home, const QStringList& otherVolumeFolders)
{
    if (!isNormalAbsolute(path))
        return false;
    if (isStrictlyInside(path, QDir::cleanPath(home)) || isApplicationsBundle(path))
        return true;
    return std::any_of(otherVolumeFolders.begin(), otherVolumeFolders.end(), [&](const QString& folder) {
        const QString clean = QDir::cleanPath(folder);
        return clean.startsWith(QLatin1String("/Volumes/")) && isStrictlyInside(path, clean);
    });
}

bool isApplicationsBundle(const QString& path)
{
    static const QString applications = QStringLiteral("/Applications/");
    return path.startsWith(applications) && path.endsWith(QLatin1String(".app"))
        && path.size() > applications.size() + 4 && path.indexOf(QLatin1Char('/'), applications.size()) < 0;
}

}  // namespace AllowedPlace
