#pragma once

#include <QBuffer>
#include <QImage>
#include <QTcpServer>
#include <QTcpSocket>

#include <string>

/// A server of map tiles that is in one of the states in which such servers are found.
class TileServer : public QTcpServer {
public:
    enum class Mood {
        There,
        Refusing, ///< 403
        Silent,   ///< takes requests and does not answer
    };

    TileServer() {
        listen(QHostAddress::LocalHost);
        port_ = serverPort();
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            }
        });
    }

    std::string address(const char *path = "/{z}/{x}/{y}.png") const {
        return "http://127.0.0.1:" + std::to_string(port_) + path;
    }
    /// Refuses connections from now on, also those that are open.
    void leave() {
        close();
        for (auto *socket : findChildren<QTcpSocket *>()) {
            socket->abort();
        }
    }
    void comeBack() { listen(QHostAddress::LocalHost, port_); }

    Mood mood = Mood::There;
    int requests = 0;

private:
    void read(QTcpSocket *socket) {
        const QByteArray text = socket->readAll();
        const auto asked = static_cast<int>(text.count("GET "));
        requests += asked;
        for (int i = 0; i < asked && mood != Mood::Silent; ++i) {
            const QByteArray body = mood == Mood::There ? tile() : QByteArray("no");
            socket->write(mood == Mood::There ? "HTTP/1.1 200 OK\r\nContent-Type: image/png\r\n"
                                              : "HTTP/1.1 403 Forbidden\r\n");
            socket->write("Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
        }
    }

    static QByteArray tile() {
        QImage image(256, 256, QImage::Format_RGB32);
        image.fill(QColor(0, 200, 0));
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return png;
    }

    quint16 port_ = 0;
};
