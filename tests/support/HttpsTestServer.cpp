#include "support/HttpsTestServer.h"

#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTimer>

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

HttpsTestServer::HttpsTestServer(const QString& commonName, const QString& address)
{
    const QString key = m_dir.filePath(QStringLiteral("key.pem"));
    const QString cert = m_dir.filePath(QStringLiteral("cert.pem"));
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"), QStringLiteral("ec"),
                   QStringLiteral("-pkeyopt"), QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes"),
                   QStringLiteral("-days"), QStringLiteral("2"), QStringLiteral("-keyout"), key, QStringLiteral("-out"),
                   cert, QStringLiteral("-subj"), QStringLiteral("/CN=") + commonName, QStringLiteral("-addext"),
                   QStringLiteral("subjectAltName=IP:") + address});
    if (!openssl.waitForFinished(30'000) || openssl.exitCode() != 0) {
        m_error = QStringLiteral("openssl failed: ") + QString::fromUtf8(openssl.readAllStandardError());
        return;
    }
    m_certificate = readAll(cert);
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPeerVerifyMode(QSslSocket::VerifyNone);  // clients bring no certificate
    tls.setLocalCertificate(QSslCertificate(m_certificate, QSsl::Pem));
    tls.setPrivateKey(QSslKey(readAll(key), QSsl::Ec, QSsl::Pem));
    m_server.setSslConfiguration(tls);
    QObject::connect(&m_server, &QSslServer::pendingConnectionAvailable, &m_server, [this] {
        while (m_server.hasPendingConnections())
            accept(static_cast<QSslSocket*>(m_server.nextPendingConnection()));
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        m_error = m_server.errorString();
}

void HttpsTestServer::accept(QSslSocket* socket)
{
    QObject::connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QSslSocket::readyRead, socket, [this, socket] {
        if (socket->property("answered").toBool() || !socket->canReadLine())
            return;
        const QList<QByteArray> requestLine = socket->readLine().split(' ');
        socket->setProperty("answered", true);
        answer(socket, requestLine.value(1).isEmpty() ? QString() : QString::fromUtf8(requestLine.value(1)));
    });
}

void HttpsTestServer::answer(QSslSocket* socket, const QString& path)
{
    m_requests.append(path);
    const Response response = m_routes.value(path, Response(404, "not found"));
    QPointer<QSslSocket> guarded(socket);
    QTimer::singleShot(response.delayMs, socket, [this, guarded, response] {
        if (!guarded)
            return;
        QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + " X\r\nConnection: close\r\n";
        const qint64 length = response.announcedLength >= 0 ? response.announcedLength : response.body.size();
        head += "Content-Length: " + QByteArray::number(length) + "\r\n";
        for (const auto& [name, value] : response.headers)
            head += name + ": " + value + "\r\n";
        guarded->write(head + "\r\n");
        sendBody(guarded, response, 0);
    });
}

void HttpsTestServer::sendBody(QSslSocket* socket, const Response& response, qsizetype from)
{
    const qsizetype size = response.chunkSize > 0 ? response.chunkSize : response.body.size();
    socket->write(response.body.mid(from, size));
    if (from + size < response.body.size()) {
        QPointer<QSslSocket> guarded(socket);
        QTimer::singleShot(response.chunkDelayMs, socket, [this, guarded, response, from, size] {
            if (guarded)
                sendBody(guarded, response, from + size);
        });
        return;
    }
    socket->flush();
    socket->disconnectFromHost();
}
