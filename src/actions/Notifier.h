#pragma once

#include "actions/Notice.h"
#include "platform/DesktopNotification.h"
#include "platform/Platform.h"

#include <QString>
#include <QStringList>

// Shows a notice on the desktop: through the freedesktop notification service over D-Bus on
// Linux, through osascript's `display notification` on macOS (the report tool has no app
// bundle of its own to ask the notification centre with).
namespace Notifier {

// Where a notice goes: the desktop's conventions and, on Linux, the session bus to use (the
// session's own when empty).
struct Delivery {
    Platform::Desktop desktop = Platform::desktop();
    QString busAddress;
};

// The osascript command line that shows `notice` on macOS, the texts quoted for AppleScript.
[[nodiscard]] QStringList appleScriptCommand(const Notice& notice);

// Shows `notice`; false when nothing showed it (no notification service answered, osascript
// failed). Blocks for a few seconds at most: never call it on the GUI thread.
bool send(const Notice& notice, const Delivery& delivery);

}  // namespace Notifier
