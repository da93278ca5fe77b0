#pragma once

#include "actions/Notice.h"
#include "platform/DesktopNotification.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

#include <optional>

// Shows a notice on the desktop: through the freedesktop notification service over D-Bus on
// Linux, through osascript's `display notification` on macOS (the report tool has no app
// bundle of its own to ask the notification centre with). osascript's notification belongs to
// the system's script runner: a click on it opens that, never Dustlark, and no one can route it.
namespace Notifier {

// Where a notice goes: the desktop's conventions and, on Linux, the session bus to use (the
// session's own when empty).
struct Delivery {
    Platform::Desktop desktop = Platform::desktop();
    QString busAddress;
};

// The osascript command line that shows `notice` on macOS, the texts quoted for AppleScript.
[[nodiscard]] QStringList appleScriptCommand(const Notice& notice);

// Shows `notice`: the notification service's id for it on Linux, whose click the process that
// sent it can hear (Platform::watchDesktopNotifications); 0 from osascript, whose notification
// is the system's and whose click opens nothing of ours. Absent when nothing showed it (no
// notification service answered, osascript failed). Blocks for a few seconds at most: never call
// it on the GUI thread.
std::optional<quint32> send(const Notice& notice, const Delivery& delivery);

}  // namespace Notifier
