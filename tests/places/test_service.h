#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <vector>

/// A place-name service that notes what it is asked and behaves as it is told.
class TestService : public QTcpServer {
public:
    struct Request {
        QByteArray head; ///< request line and headers
        QByteArray body;
        QPointer<QTcpSocket> from;

        /// The value of a header as it was sent, name included; "" without it.
        QByteArray header(const QByteArray &name) const {
            for (const QByteArray &line : head.split('\n')) {
                if (line.startsWith(name + ": ")) {
                    return line.mid(name.size() + 2).trimmed();
                }
            }
            return {};
        }
        /// "LAT LON"
        QByteArray position() const {
            const auto between = [this](const QByteArray &before, const QByteArray &after) {
                const auto start = body.indexOf(before) + before.size();
                return body.mid(start, body.indexOf(after) - start);
            };
            return between("<Lat>", "</Lat>") + ' ' + between("<Lon>", "</Lon>");
        }
        void send(const QByteArray &bytes) const {
            if (from) {
                from->write(bytes);
            }
        }
        void close() const {
            if (from) {
                from->disconnectFromHost();
            }
        }
        void answer(const QByteArray &text, const QByteArray &headers = {}) const {
            send(whole(envelope(text), "200 OK", headers));
        }
    };

    /// Without a behaviour, requests are noted and wait for an answer.
    explicit TestService(std::function<void(const Request &)> behaviour = {})
        : behave(std::move(behaviour)) {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = nextPendingConnection()) {
                ++connections;
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
                connect(socket, &QTcpSocket::disconnected, socket, &QTcpSocket::deleteLater);
            }
        });
        if (!listen(QHostAddress::LocalHost)) {
            qFatal("no port is free");
        }
    }

    std::string address() const { return "http://127.0.0.1:" + std::to_string(serverPort()); }

    static QByteArray envelope(const QByteArray &text) {
        return "<s:Envelope xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\"><s:Body><R>"
               "<ConvertLonLatPtToNearestPlaceResult>" +
               text + "</ConvertLonLatPtToNearestPlaceResult></R></s:Body></s:Envelope>";
    }
    static QByteArray whole(const QByteArray &body, const QByteArray &status = "200 OK",
                            const QByteArray &headers = {}) {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\n" + headers + "\r\n" + body;
    }

    std::function<void(const Request &)> behave;
    std::vector<Request> requests;
    int connections = 0; ///< accepted until now

private:
    void read(QTcpSocket *socket) {
        QByteArray &buffer = buffers_[socket];
        buffer += socket->readAll();
        const auto headEnd = buffer.indexOf("\r\n\r\n");
        const Request request{buffer.left(headEnd), buffer.mid(headEnd + 4), socket};
        if (headEnd < 0 || request.body.size() < request.header("Content-Length").toInt()) {
            return;
        }
        buffer.clear();
        requests.push_back(request);
        if (behave) {
            behave(request);
        }
    }

    QHash<QTcpSocket *, QByteArray> buffers_;
};
