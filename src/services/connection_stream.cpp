#include "services/connection_stream.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>

namespace pinmora {
namespace {

/// More than this waits for the client to take it.
constexpr std::size_t mostUnsent = 256 * 1024;

using std::chrono::milliseconds;
using std::chrono::steady_clock;

} // namespace

bool ConnectionStream::await(short event, milliseconds time) const {
    const auto end = steady_clock::now() + time;
    for (;;) {
        const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
        pollfd waiting{socket_, event, 0};
        const int ready =
            poll(&waiting, 1, static_cast<int>(std::max(left, milliseconds(0)).count()));
        if (ready >= 0 || errno != EINTR) {
            return ready > 0;
        }
    }
}

ssize_t ConnectionStream::fill() {
    ssize_t count = 0;
    do {
        count = recv(socket_, buffer_.data(), buffer_.size(), 0);
    } while (count < 0 && errno == EINTR);
    begin_ = 0;
    end_ = count > 0 ? static_cast<std::size_t>(count) : 0;
    return count;
}

bool ConnectionStream::awaitRequest(milliseconds time) {
    allowed_ = longestRequest;
    return begin_ < end_ || (await(POLLIN, time) && fill() > 0);
}

bool ConnectionStream::flush() {
    std::size_t sent = 0;
    while (!broken_ && sent < unsent_.size()) {
        const ssize_t count = send(socket_, unsent_.data() + sent, unsent_.size() - sent,
                                   MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count >= 0) {
            sent += static_cast<std::size_t>(count);
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            broken_ = !await(POLLOUT, patience);
        } else {
            broken_ = errno != EINTR;
        }
    }
    unsent_.clear();
    return !broken_;
}

void ConnectionStream::leaveGently() {
    constexpr milliseconds moment(500);
    const auto end = steady_clock::now() + moment;
    flush();
    ::shutdown(socket_, SHUT_WR);
    while (steady_clock::now() < end && await(POLLIN, moment) && fill() > 0) {
    }
}

bool ConnectionStream::is_readable() const {
    return begin_ < end_ || await(POLLIN, patience);
}

bool ConnectionStream::is_writable() const {
    return !broken_;
}

ssize_t ConnectionStream::read(char *bytes, size_t size) {
    if (begin_ == end_) {
        // The client may wait for what has been written before it sends more.
        if (!flush() || !await(POLLIN, patience)) {
            return -1;
        }
        if (const ssize_t count = fill(); count <= 0) {
            return count;
        }
    }
    const std::size_t count = std::min({size, end_ - begin_, allowed_});
    if (count == 0) {
        return -1;
    }
    allowed_ -= count;
    std::memcpy(bytes, buffer_.data() + begin_, count);
    begin_ += count;
    return static_cast<ssize_t>(count);
}

ssize_t ConnectionStream::write(const char *bytes, size_t size) {
    unsent_.append(bytes, size);
    if ((unsent_.size() > mostUnsent && !flush()) || broken_) {
        return -1;
    }
    return static_cast<ssize_t>(size);
}

void ConnectionStream::get_remote_ip_and_port(std::string &ip, int &port) const {
    ip = "127.0.0.1";
    port = 0;
}

void ConnectionStream::get_local_ip_and_port(std::string &ip, int &port) const {
    get_remote_ip_and_port(ip, port);
}

} // namespace pinmora
