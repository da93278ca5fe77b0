#include "ui/SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

namespace {

const QByteArray raiseRequest = "raise\n";
const QByteArray overviewRequest = "overview\n";

}  // namespace

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent), m_socket(folder + QStringLiteral("/dustlark.socket")),
      m_lock(folder + QStringLiteral("/dustlark.lock"))
{
    // The lock of a copy that crashed names a process that is gone; QLockFile takes it over.
    m_lock.setStaleLockTime(0);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

// Per user by its place: the runtime folder is the user's own (mode 0700) on Linux, the
// temporary folder is per user on macOS.
QString SingleInstance::defaultFolder()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    // A socket's path must stay short (104 bytes on macOS); the runtime folder there is long.
    if (!runtime.isEmpty() && runtime.size() < 80)
        return runtime;
    return QDir::tempPath();
}

bool SingleInstance::claim(std::chrono::milliseconds patience, Request request)
{
    if (!m_lock.tryLock(0)) {
        (void)askRunningCopy(patience, request);
        return false;
    }
    // The socket of a copy that crashed is left behind; holding the lock, it can only be stale.
    QLocalServer::removeServer(m_socket);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.listen(m_socket);
    return true;
}

// The running copy may still be starting (lock taken, not yet listening): ask until it answers.
bool SingleInstance::askRunningCopy(std::chrono::milliseconds patience, Request request) const
{
    const QDeadlineTimer deadline(patience);
    do {
        QLocalSocket socket;
        socket.connectToServer(m_socket);
        if (socket.waitForConnected(200)) {
            socket.write(request == Request::showOverview ? overviewRequest : raiseRequest);
            const bool sent = socket.waitForBytesWritten(1000);
            socket.disconnectFromServer();
            if (sent)
                return true;
        }
        QThread::msleep(50);
    } while (!deadline.hasExpired());
    return false;
}

void SingleInstance::answer()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            while (socket->canReadLine()) {
                const QByteArray line = socket->readLine();
                if (line == raiseRequest)
                    emit activationRequested();
                else if (line == overviewRequest)
                    emit overviewRequested();
            }
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();  // what arrived before the connection was taken
    }
}
