#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>

// A private session bus (dbus-run-session) with a notification service on it that records the
// calls it gets (tests/support/listener). Absent tools leave it not running; tests skip then.
class NotificationBus {
public:
    NotificationBus();
    ~NotificationBus();
    NotificationBus(const NotificationBus&) = delete;
    NotificationBus& operator=(const NotificationBus&) = delete;

    // Why the bus is not running; empty when it is.
    const QString& unavailable() const { return m_unavailable; }
    const QString& address() const { return m_address; }
    // Every Notify call so far, oldest first.
    QList<QJsonObject> calls();

private:
    QProcess m_session;
    QString m_address;
    QString m_unavailable;
    QList<QJsonObject> m_calls;
};
