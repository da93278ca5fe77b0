#include "support/NotificationBus.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

NotificationBus::NotificationBus(Person person)
{
    const QString runSession = QStandardPaths::findExecutable(QStringLiteral("dbus-run-session"));
    const QString listener = QStringLiteral(DUSTLARK_NOTIFICATION_LISTENER);
    if (runSession.isEmpty() || listener.isEmpty() || !QFileInfo(listener).isExecutable()) {
        m_unavailable = QStringLiteral("needs dbus-run-session (package dbus-daemon) and the notification listener");
        return;
    }
    QStringList arguments{QStringLiteral("--"), listener};
    if (person == Person::dismissesAtOnce)
        arguments.append(QStringLiteral("--dismiss"));
    m_session.start(runSession, arguments);
    while (m_session.waitForReadyRead(10'000) || m_session.canReadLine()) {
        if (!m_session.canReadLine())
            continue;
        const QString line = QString::fromUtf8(m_session.readLine()).trimmed();
        if (line.startsWith(QLatin1String("address "))) {
            m_address = line.mid(8);
            return;
        }
    }
    m_unavailable = QStringLiteral("the notification listener did not start: ") + QString::fromUtf8(m_session.readAllStandardError());
}

NotificationBus::~NotificationBus()
{
    if (m_session.state() == QProcess::NotRunning)
        return;
    m_session.closeWriteChannel();
    if (!m_session.waitForFinished(10'000))
        m_session.kill();
    m_session.waitForFinished();
}

QList<QJsonObject> NotificationBus::calls()
{
    // The listener writes a call's line before it answers, so a finished caller's line is here.
    m_session.waitForReadyRead(100);
    while (m_session.canReadLine())
        m_calls.append(QJsonDocument::fromJson(m_session.readLine()).object());
    return m_calls;
}

void NotificationBus::click(quint32 id)
{
    m_session.write("click " + QByteArray::number(id) + '\n');
    m_session.waitForBytesWritten(1000);
}
