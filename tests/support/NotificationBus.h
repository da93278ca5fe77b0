#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QString>

// A private session bus (dbus-run-session) with a notification service on it that records the
// calls it gets (tests/support/listener). Absent tools leave it not running; tests skip then.
class NotificationBus {
public:
    // What the person in front of the screen does with each notification.
    enum class Person { dismissesAtOnce, clicksWhenTold };

    explicit NotificationBus(Person person = Person::dismissesAtOnce);
    ~NotificationBus();
    NotificationBus(const NotificationBus&) = delete;
    NotificationBus& operator=(const NotificationBus&) = delete;

    // Why the bus is not running; empty when it is.
    const QString& unavailable() const { return m_unavailable; }
    const QString& address() const { return m_address; }
    // Every Notify call so far, oldest first.
    QList<QJsonObject> calls();
    // The person clicks notification `id` (then it is closed, as a click dismisses it).
    void click(quint32 id);

private:
    QProcess m_session;
    QString m_address;
    QString m_unavailable;
    QList<QJsonObject> m_calls;
};
