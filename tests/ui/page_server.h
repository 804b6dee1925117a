#pragma once

#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

/// Serves small pages over HTTP on the loopback interface; what a path does not say is 404. Seen
/// under two names, it is two origins.
class PageServer : public QTcpServer {
public:
    PageServer() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }
    QString origin(const char *host = "127.0.0.1") const {
        return QStringLiteral("http://%1:%2").arg(QLatin1String(host)).arg(serverPort());
    }

    QHash<QByteArray, QByteArray> pages; ///< by path, without the query
    QByteArray lastAgent;
    int requests = 0;

private:
    void answer(QTcpSocket &socket) {
        QByteArray request = socket.property("request").toByteArray() + socket.readAll();
        socket.setProperty("request", request);
        if (!request.contains("\r\n\r\n")) {
            return;
        }
        ++requests;
        const QByteArray path = request.split(' ').value(1).split('?').first();
        for (const QByteArray &line : request.split('\n')) {
            if (line.startsWith("User-Agent: ")) {
                lastAgent = line.mid(12).trimmed();
            }
        }
        const QByteArray page = pages.value(path);
        socket.write((pages.contains(path) ? "HTTP/1.1 200 OK" : "HTTP/1.1 404 Not Found") +
                     QByteArray("\r\nContent-Type: text/html; charset=utf-8\r\nContent-Length: ") +
                     QByteArray::number(page.size()) + "\r\nConnection: close\r\n\r\n" + page);
        socket.disconnectFromHost();
    }
};
