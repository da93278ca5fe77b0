#include "actions/ToolLocations.h"

#include "platform/Platform.h"

ToolLocations ToolLocations::standard(const QString& home)
{
    ToolLocations tools;
    tools.dockerCandidates = {
        QStringLiteral("/usr/local/bin/docker"),
        QStringLiteral("/opt/homebrew/bin/docker"),
        home + QStringLiteral("/.docker/bin/docker"),
        QStringLiteral("/Applications/Docker.app/Contents/Resources/bin/docker"),
        QStringLiteral("/Applications/OrbStack.app/Contents/MacOS/xbin/docker"),
    };
    if (Platform::desktop() == Platform::Desktop::freedesktop)
        tools.dockerCandidates.append(QStringLiteral("/usr/bin/docker"));  // distribution packages
    tools.xcrun = QStringLiteral("/usr/bin/xcrun");
    tools.osascript = QStringLiteral("/usr/bin/osascript");
    return tools;
}
