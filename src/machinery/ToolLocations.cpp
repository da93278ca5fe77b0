#include "machinery/ToolLocations.h"

#include "platform/Platform.h"

namespace {

bool isLinux()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

}  // namespace

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
    if (isLinux())
        tools.dockerCandidates.append(QStringLiteral("/usr/bin/docker"));  // distribution packages
    tools.xcrun = QStringLiteral("/usr/bin/xcrun");
    tools.xcodeSelect = QStringLiteral("/usr/bin/xcode-select");
    tools.ps = QStringLiteral("/bin/ps");  // procps' ps on Linux takes the same arguments
    tools.osascript = QStringLiteral("/usr/bin/osascript");
    return tools;
}

QStringList ToolLocations::gitCandidates()
{
    QStringList candidates = {
        QStringLiteral("/Library/Developer/CommandLineTools/usr/bin/git"),
        QStringLiteral("/Applications/Xcode.app/Contents/Developer/usr/bin/git"),
        QStringLiteral("/opt/homebrew/bin/git"),
        QStringLiteral("/usr/local/bin/git"),
    };
    if (isLinux())
        candidates.append(QStringLiteral("/usr/bin/git"));
    return candidates;
}
