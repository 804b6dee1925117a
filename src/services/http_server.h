#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <thread>

#include <httplib.h>

namespace pinmora {

class ConnectionStream;

/// The library's server on the loopback interface, made to end at once whatever its clients do: the
/// library itself waits until each connection that is kept open has been idle for long enough.
///
/// Its gate and its handlers run on threads of the server, several at a time; the handlers are
/// given before start().
class HttpServer : public httplib::Server {
public:
    /// A request that is answered with a status alone, without a look at its body.
    struct Refusal {
        int status = 0;         ///< 0: it is let through
        std::string allow = {}; ///< the methods that status 405 names
    };
    using Gate = std::function<Refusal(const httplib::Request &)>;

    explicit HttpServer(Gate gate);
    /// stop()s.
    ~HttpServer() override;
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Takes a free port of 127.0.0.1, whose connections wait from now on; 0 when there is none.
    int bind();
    /// Serves what comes to that port, on threads of its own; false when none can be had.
    bool start();
    /// Breaks the connections off and waits for the handlers that run. Not to be called by one.
    void stop();

private:
    bool process_and_close_socket(socket_t socket) override;
    void serve(socket_t socket);
    bool serveOne(ConnectionStream &stream);
    bool enter(socket_t socket);
    void leave(socket_t socket);

    const Gate gate_;
    std::thread accepting_;
    std::atomic<bool> hasEnded_ = false;
    std::mutex mutex_;               ///< of the two below
    std::set<socket_t> connections_; ///< open ones
    bool stopping_ = false;
};

} // namespace pinmora
