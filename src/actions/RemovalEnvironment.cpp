#include "actions/RemovalEnvironment.h"

#include "actions/SystemTrash.h"
#include "machinery/DockerEndpoint.h"
#include "platform/Platform.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/SharedScanFolders.h"

#include <QDir>

RemovalEnvironment RemovalEnvironment::current()
{
    RemovalEnvironment environment;
    environment.home = QDir::cleanPath(QDir::homePath());
    environment.otherVolumeFolders = AllowedPlace::otherVolumeFolders(SharedScanFolders::current(), environment.home);
    environment.tools = ToolLocations::standard(environment.home);
    environment.dockerScan = DockerScanRecord::last();
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
