#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSslServer>
#include <QString>
#include <QTemporaryDir>

// A real HTTPS server on 127.0.0.1 for the update tests, with a throw-away certificate that the
// openssl tool makes for it. Each path answers with a canned response; it serves on the event
// loop of the test's own thread, so a test waits with an event loop, never with sleep.
class HttpsTestServer {
public:
    struct Response {
        Response(int status = 200, QByteArray body = {}, QList<QPair<QByteArray, QByteArray>> headers = {})
            : status(status), body(std::move(body)), headers(std::move(headers))
        {
        }
        int status = 200;
        QByteArray body;
        QList<QPair<QByteArray, QByteArray>> headers;
        int delayMs = 0;        // before the first byte
        int chunkDelayMs = 0;   // between the body's chunks of `chunkSize` bytes
        int chunkSize = 0;      // 0: the body in one piece
        qint64 announcedLength = -1;  // a larger Content-Length cuts the body short
    };

    // `commonName` and `address` go into the certificate; empty when openssl failed.
    explicit HttpsTestServer(const QString& commonName = QStringLiteral("127.0.0.1"),
                             const QString& address = QStringLiteral("127.0.0.1"));

    [[nodiscard]] bool isListening() const { return m_server.isListening(); }
    [[nodiscard]] QString error() const { return m_error; }
    [[nodiscard]] QByteArray certificatePem() const { return m_certificate; }
    [[nodiscard]] quint16 port() const { return m_server.serverPort(); }
    [[nodiscard]] QString origin() const { return QStringLiteral("https://127.0.0.1:%1").arg(port()); }

    void serve(const QString& path, Response response) { m_routes.insert(path, std::move(response)); }
    // Paths requested so far, in order.
    [[nodiscard]] QStringList requests() const { return m_requests; }

private:
    void accept(QSslSocket* socket);
    void answer(QSslSocket* socket, const QString& path);
    void sendBody(QSslSocket* socket, const Response& response, qsizetype from);

    QTemporaryDir m_dir;
    QSslServer m_server;
    QByteArray m_certificate;
    QString m_error;
    QHash<QString, Response> m_routes;
    QStringList m_requests;
};
