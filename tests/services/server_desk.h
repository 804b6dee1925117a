#pragma once

#include "services/local_server.h"

#include <QByteArray>

#include <chrono>
#include <string>

#include <arpa/inet.h>
#include <httplib.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace pinmora::test {

// Where place names are asked for, and in what form.
inline constexpr const char *placePath = "/TerraService2.asmx";
inline constexpr const char *xml = "text/xml; charset=utf-8";

inline int portOf(LocalServer &server) {
    const std::string address = server.address();
    return std::stoi(address.substr(address.rfind(':') + 1));
}

inline httplib::Client clientOf(LocalServer &server) {
    httplib::Client client("127.0.0.1", portOf(server));
    client.set_keep_alive(true);
    client.set_tcp_nodelay(true);
    return client;
}

/// The envelope that asks for the place at a position.
inline std::string envelope(const std::string &lon, const std::string &lat) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap:Envelope"
           " xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
           "<ConvertLonLatPtToNearestPlace xmlns=\"urn:pinmora:places/\"><point><Lon>" +
           lon + "</Lon><Lat>" + lat +
           "</Lat></point></ConvertLonLatPtToNearestPlace></soap:Body></soap:Envelope>";
}

/// A bare connection, for what no client library sends.
class RawConnection {
public:
    explicit RawConnection(int port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        connected_ =
            connect(socket_, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    }
    ~RawConnection() { close(socket_); }
    RawConnection(const RawConnection &) = delete;
    RawConnection &operator=(const RawConnection &) = delete;

    bool isConnected() const { return connected_; }

    void send(const QByteArray &bytes) const {
        ::send(socket_, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
    }

    /// What comes until the server ends the connection; "(open)" at the end where it does not in
    /// that time.
    QByteArray readToEnd(std::chrono::milliseconds time = std::chrono::seconds(20)) const {
        QByteArray all;
        pollfd waiting{socket_, POLLIN, 0};
        while (poll(&waiting, 1, static_cast<int>(time.count())) > 0) {
            QByteArray piece(65536, '\0');
            const ssize_t count = recv(socket_, piece.data(), 65536, 0);
            if (count <= 0) {
                return all;
            }
            all += piece.first(count);
        }
        return all + "(open)";
    }

private:
    int socket_;
    bool connected_ = false;
};

} // namespace pinmora::test
