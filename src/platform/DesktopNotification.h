#pragma once

// The desktop's notification service, which only Linux reaches by a system call of its own (a
// D-Bus method); kept apart from Platform.h so the D-Bus seam stays where the bus is linked.
// Includes nothing of ours. Thread-safe.

#include <QString>

namespace Platform {

// One notification for the desktop's notification service.
struct DesktopNotification {
    QString appName;
    QString desktopEntry;  // the app's desktop entry, which a click on the notification opens
    QString summary;
    QString body;
};

// Shows `notification` through org.freedesktop.Notifications on the D-Bus bus at `busAddress`
// (the session's own bus when empty). False when no bus or no notification service answered;
// always false on macOS, which has no such bus (the report tool asks osascript there). Blocks
// for up to three seconds: never call it on the GUI thread.
bool postDesktopNotification(const QString& busAddress, const DesktopNotification& notification);

}  // namespace Platform
