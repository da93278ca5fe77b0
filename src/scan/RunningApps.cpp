#include "scan/RunningApps.h"

#include "scan/AppOwners.h"
#include "scan/PropertyList.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>

namespace {

// The outermost application bundle a program lies in: helpers nested inside an app
// ("Chrome.app/Contents/Frameworks/.../Helper.app") count as the app itself.
QString outermostBundle(const QString& executable)
{
    const qsizetype end = executable.indexOf(QLatin1String(".app/"));
    return end < 0 ? QString() : executable.left(end + 4);
}

}  // namespace

RunningApps RunningApps::from(const QStringList& executables)
{
    RunningApps running;
    QSet<QString> bundlesRead;
    for (const QString& executable : executables) {
        running.m_programs.insert(executable.section(QLatin1Char('/'), -1).toLower());
        const QString bundle = outermostBundle(executable);
        if (bundle.isEmpty() || bundlesRead.contains(bundle))
            continue;
        bundlesRead.insert(bundle);
        const auto identifier = PropertyList::string(bundle + QStringLiteral("/Contents/Info.plist"),
                                                     QStringLiteral("CFBundleIdentifier"));
        if (identifier && !identifier->isEmpty())
            running.m_bundleIDs.insert(identifier->toLower());
    }
    return running;
}

bool RunningApps::isRunning(const QString& identifierOrName) const
{
    QString key = identifierOrName.toLower();
    if (key.isEmpty())
        return false;
    if (m_programs.contains(key))
        return true;
    for (const AppOwner& owner : AppOwners::all()) {
        for (const QString& bundleID : owner.bundleIDs) {
            if (bundleID.compare(key, Qt::CaseInsensitive) == 0 && isRunning(owner))
                return true;
        }
    }
    // "com.vendor.App.ShipIt" belongs to "com.vendor.App"; a vendor alone ("com") names no app.
    for (;;) {
        if (m_bundleIDs.contains(key))
            return true;
        const qsizetype dot = key.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0)
            return false;
        key.truncate(dot);
        if (!key.contains(QLatin1Char('.')))
            return false;
    }
}

bool RunningApps::isRunning(const AppOwner& owner) const
{
    for (const QString& bundleID : owner.bundleIDs) {
        if (m_bundleIDs.contains(bundleID.toLower()))
            return true;
    }
    for (const QString& program : owner.programs) {
        if (m_programs.contains(program.toLower()))
            return true;
    }
    return false;
}

std::optional<AppOwner> RunningApps::runningOwner(const QString& path, const QString& home,
                                                  const QList<AppOwner>& owners) const
{
    for (const AppOwner& owner : owners) {
        for (const QString& folder : owner.folders) {
            if (PathRules::isAtOrBelow(path, home + QLatin1Char('/') + folder) && isRunning(owner))
                return owner;
        }
    }
    return std::nullopt;
}

std::optional<AppOwner> RunningApps::runningOwner(const QString& path, const QString& home) const
{
    return runningOwner(path, home, AppOwners::all());
}

void RunningApps::lockRowsOfRunningOwners(QList<CleanupItem>& rows, const QString& home,
                                          QString (*reason)(const QString& app)) const
{
    for (CleanupItem& row : rows) {
        const QStringList paths = row.removal.paths();
        if (row.lockedReason || paths.isEmpty())
            continue;
        if (const auto owner = runningOwner(paths.first(), home))
            row.lockedReason = reason(owner->name);
    }
}

QString RunningApps::quitToRemove(const QString& app)
{
    //: Why a row can't be selected; %1 is the name of the app that uses it
    return QCoreApplication::translate("RunningApps", "Running. Quit %1 to remove it.").arg(app);
}

QString RunningApps::quitToCleanCaches(const QString& app)
{
    //: Why an app's cache row can't be selected; %1 is the app's name
    return QCoreApplication::translate("RunningApps", "Running. Quit %1 to clean its caches.").arg(app);
}

QString RunningApps::quitToCleanCache(const QString& app)
{
    //: Why a browser's cache row can't be selected; %1 is the browser's name
    return QCoreApplication::translate("RunningApps", "Running. Quit %1 to clean its cache.").arg(app);
}
