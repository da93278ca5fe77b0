#pragma once

// The desktop's notification service, which only Linux reaches by a system call of its own (a
// D-Bus method); kept apart from Platform.h so the D-Bus seam stays where the bus is linked.
// Includes nothing of ours. Thread-safe.

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Platform {

// One notification for the desktop's notification service.
struct DesktopNotification {
    QString appName;
    QString desktopEntry;  // the app's desktop entry, which a click on the notification opens
    QString summary;
    QString body;
};

// Shows `notification` through org.freedesktop.Notifications on the D-Bus bus at `busAddress`
// (the session's own bus when empty), offering its click as the "default" action. The id the
// service gave it; absent when no bus or no notification service answered, and always on
// macOS, which has no such bus (the report tool asks osascript there). Blocks for up to three
// seconds: never call it on the GUI thread.
std::optional<quint32> postDesktopNotification(const QString& busAddress, const DesktopNotification& notification);

// What the person did with a notification this process showed.
enum class NotificationAnswer { clicked, closed };

// Calls `answered` on `context`'s thread each time the person clicks a notification this process
// showed on the bus at `busAddress`, or it closes (the id, and which it was), until `context` is
// gone. The service tells only the connection that showed it, so this must be the process that
// posted it, and it hears only while it runs. False when there is no such bus (always on macOS).
bool watchDesktopNotifications(const QString& busAddress, QObject* context,
                               const std::function<void(quint32 id, NotificationAnswer answer)>& answered);

// Takes notification `id` back from the screen, when no one is left to answer its click.
void closeDesktopNotification(const QString& busAddress, quint32 id);

}  // namespace Platform
