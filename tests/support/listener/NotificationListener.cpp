// Owns org.freedesktop.Notifications on the session bus it runs in and records every Notify call:
// prints "address <bus address>" once it owns the name, then one JSON line per call, written
// before the call is answered (so a caller that got its answer finds its line already there).
// Stands for the person too: with --dismiss it closes each notification as soon as it is
// answered; otherwise a line "click ID" on its standard input clicks one, told as a server tells
// it (to the connection that showed it). Ends when its standard input
// closes. Run under dbus-run-session for a private, real bus.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

class NotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit NotificationServer(bool dismissAtOnce) : m_dismissAtOnce(dismissAtOnce) {}

    void click(uint id)
    {
        emit ActionInvoked(id, QStringLiteral("default"));
        close(id, 2);  // a clicked notification goes away: "dismissed by the user"
    }
    void close(uint id, uint reason) { emit NotificationClosed(id, reason); }

signals:
    void ActionInvoked(uint id, const QString& actionKey);
    void NotificationClosed(uint id, uint reason);

public slots:
    uint Notify(const QString& appName, uint replacesId, const QString& appIcon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int expireTimeout)
    {
        const uint id = ++m_lastId;
        const QJsonObject call{{"id", int(id)},
                               {"appName", appName},
                               {"replacesId", int(replacesId)},
                               {"appIcon", appIcon},
                               {"summary", summary},
                               {"body", body},
                               {"actions", QJsonArray::fromStringList(actions)},
                               {"hints", QJsonObject::fromVariantMap(hints)},
                               {"expireTimeout", expireTimeout}};
        std::printf("%s\n", QJsonDocument(call).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
        if (m_dismissAtOnce)  // after the answer, which leaves with this slot's return
            QTimer::singleShot(0, this, [this, id] { close(id, 2); });
        return id;
    }
    void CloseNotification(uint id) { close(id, 3); }
    QStringList GetCapabilities() { return {QStringLiteral("body"), QStringLiteral("actions")}; }

private:
    bool m_dismissAtOnce;
    uint m_lastId = 0;
};

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    NotificationServer server(app.arguments().contains(QStringLiteral("--dismiss")));
    if (!bus.isConnected()
        || !bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        || !bus.registerService(QStringLiteral("org.freedesktop.Notifications"))) {
        std::fprintf(stderr, "cannot serve org.freedesktop.Notifications: %s\n", qPrintable(bus.lastError().message()));
        return 1;
    }
    std::printf("address %s\n", qgetenv("DBUS_SESSION_BUS_ADDRESS").constData());
    std::fflush(stdout);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QByteArray pending;
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&] {
        char buffer[256];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0) {
            app.quit();
            return;
        }
        pending.append(buffer, count);
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QList<QByteArray> words = pending.left(end).split(' ');
            pending.remove(0, end + 1);
            if (words.size() == 2 && words[0] == "click")
                server.click(words[1].toUInt());
        }
    });
    return app.exec();
}

#include "NotificationListener.moc"
