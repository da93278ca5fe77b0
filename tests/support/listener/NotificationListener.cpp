// Owns org.freedesktop.Notifications on the session bus it runs in and records every Notify call:
// prints "address <bus address>" once it owns the name, then one JSON line per call, written
// before the call is answered (so a caller that got its answer finds its line already there).
// Ends when its standard input closes. Run under dbus-run-session for a private, real bus.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

class NotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public slots:
    uint Notify(const QString& appName, uint replacesId, const QString& appIcon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int expireTimeout)
    {
        const QJsonObject call{{"appName", appName},
                               {"replacesId", int(replacesId)},
                               {"appIcon", appIcon},
                               {"summary", summary},
                               {"body", body},
                               {"actions", QJsonArray::fromStringList(actions)},
                               {"hints", QJsonObject::fromVariantMap(hints)},
                               {"expireTimeout", expireTimeout}};
        std::printf("%s\n", QJsonDocument(call).toJson(QJsonDocument::Compact).constData());
        std::fflush(stdout);
        return ++m_lastId;
    }
    QStringList GetCapabilities() { return {QStringLiteral("body"), QStringLiteral("actions")}; }

private:
    uint m_lastId = 0;
};

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    NotificationServer server;
    if (!bus.isConnected() || !bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server, QDBusConnection::ExportAllSlots)
        || !bus.registerService(QStringLiteral("org.freedesktop.Notifications"))) {
        std::fprintf(stderr, "cannot serve org.freedesktop.Notifications: %s\n", qPrintable(bus.lastError().message()));
        return 1;
    }
    std::printf("address %s\n", qgetenv("DBUS_SESSION_BUS_ADDRESS").constData());
    std::fflush(stdout);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [&] {
        char buffer[256];
        if (::read(STDIN_FILENO, buffer, sizeof buffer) <= 0)
            app.quit();
    });
    return app.exec();
}

#include "NotificationListener.moc"
