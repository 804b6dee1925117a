#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <string>

#include <httplib.h>

namespace pinmora {

/// One connection of a client, read and written in large pieces: the library's parser takes its
/// lines byte by byte. Used by one thread; does not close the socket.
class ConnectionStream : public httplib::Stream {
public:
    /// How long a client that has begun something is waited for.
    static constexpr std::chrono::seconds patience{5};
    /// What a request may have at most, all its fields and its body.
    static constexpr std::size_t longestRequest = 256 * 1024;

    explicit ConnectionStream(socket_t socket) : socket_(socket) {}

    /// Waits until the next request begins; false when none does in that time, or the client has
    /// gone.
    bool awaitRequest(std::chrono::milliseconds time);
    /// Sends what has been written; false when the client does not take it.
    bool flush();
    /// Ends the sending, and reads for a moment what the client still sends without looking at it:
    /// closed at once, the connection could be reset before the client has read the answer.
    void leaveGently();

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *bytes, size_t size) override;
    ssize_t write(const char *bytes, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return socket_; }

private:
    bool await(short event, std::chrono::milliseconds time) const;
    /// Reads into the buffer; what recv() says.
    ssize_t fill();

    const socket_t socket_;
    std::array<char, 16 * 1024> buffer_{};
    std::size_t begin_ = 0; ///< what of the buffer has not been read yet
    std::size_t end_ = 0;
    std::size_t allowed_ = 0; ///< of the request that is read, still
    std::string unsent_;
    bool broken_ = false;
};

} // namespace pinmora
