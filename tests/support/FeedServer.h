#pragma once

#include "support/Certificate.h"

#include <QHash>
#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QUrl>

/// An HTTPS server on this machine, in the test's own thread. What it is not told to answer gets
/// status 404.
class FeedServer {
public:
    FeedServer()
    {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setLocalCertificate(m_certificate.certificate);
        tls.setPrivateKey(m_certificate.key);
        m_server.setSslConfiguration(tls);
        QObject::connect(&m_server, &QTcpServer::pendingConnectionAvailable, &m_server, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection())
                QObject::connect(socket, &QTcpSocket::readyRead, socket,
                                 [this, socket] { read(*socket); });
        });
        m_server.listen(QHostAddress::LocalHost);
    }

    QUrl address(const QString &path = QStringLiteral("/feed")) const
    {
        return QUrl(QStringLiteral("https://localhost:%1%2").arg(m_server.serverPort()).arg(path));
    }
    /// What trusts this server.
    QSslConfiguration trusting() const
    {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setCaCertificates({m_certificate.certificate});
        return tls;
    }

    /// Answers with this body.
    void serve(const QByteArray &body, const QString &path = QStringLiteral("/feed"))
    {
        respond("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size())
                    + "\r\nConnection: close\r\n\r\n" + body,
                path);
    }
    void redirect(const QString &to, const QString &path = QStringLiteral("/feed"))
    {
        respond("HTTP/1.1 302 Found\r\nLocation: " + to.toUtf8()
                    + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n",
                path);
    }
    /// Answers with these bytes, header and all; the connection stays open when they are empty.
    void respond(const QByteArray &bytes, const QString &path = QStringLiteral("/feed"))
    {
        m_answers.insert(path, bytes);
    }
    /// Refuses connections from now on.
    void close() { m_server.close(); }

    /// Header lines of all requests so far.
    const QByteArrayList &requests() const { return m_requests; }

private:
    void read(QTcpSocket &socket)
    {
        const QByteArray request = socket.readAll();
        m_requests << request;
        const QString path = QString::fromLatin1(request.split(' ').value(1));
        const QByteArray answer = m_answers.value(
            path, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
        if (answer.isEmpty())
            return;
        socket.write(answer);
        socket.disconnectFromHost();
    }

    const Certificate m_certificate = Certificate::forLocalhost();
    QSslServer m_server;
    QHash<QString, QByteArray> m_answers;
    QByteArrayList m_requests;
};
