#include "actions/RemovalEnvironment.h"

#include "actions/SystemTrash.h"
#include "machinery/DockerEndpoint.h"
#include "platform/Platform.h"
#include "vocabulary/AllowedPlace.h"

#include <QDir>

RemovalEnvironment RemovalEnvironment::system(const QString& home, const QStringList& scanFolders)
{
    RemovalEnvironment environment;
    environment.home = QDir::cleanPath(home);
    environment.otherVolumeFolders = AllowedPlace::otherVolumeFolders(scanFolders, environment.home);
    environment.tools = ToolLocations::standard(environment.home);
    environment.dockerHostVariable = DockerEndpoint::hostVariable();
    return environment;
}

QDateTime RemovalEnvironment::systemNow()
{
    return QDateTime::currentDateTimeUtc();
}

QStringList RemovalEnvironment::systemRunningExecutables()
{
    return Platform::runningExecutables();
}

TrashResult RemovalEnvironment::systemTrash(const TrashRequest& request)
{
    return SystemTrash::move(request);
}
