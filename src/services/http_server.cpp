#include "services/http_server.h"

#include "services/connection_stream.h"
#include "services/connection_threads.h"

#include <chrono>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace pinmora {
namespace {

/// A browser keeps six connections to a host; the rest is for whoever else asks.
constexpr std::size_t mostConnections = 256;
/// How long a connection may be idle; it is closed a little later, for what is on its way by then.
constexpr std::chrono::seconds idleTime{60};
constexpr std::chrono::seconds grace{5};

void setOptions(socket_t socket) {
    // The child processes of the program must not keep a connection open.
    fcntl(socket, F_SETFD, FD_CLOEXEC);
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

bool hasBody(const httplib::Request &request) {
    const std::string length = request.get_header_value("Content-Length");
    return request.has_header("Transfer-Encoding") || !(length.empty() || length == "0");
}

} // namespace

HttpServer::HttpServer(Gate gate) : gate_(std::move(gate)) {
    new_task_queue = [] { return new ConnectionThreads(mostConnections); };
    // Without the library's SO_REUSEPORT, which lets another program take half of the requests.
    set_socket_options([](socket_t) {});
    // What the answers say of it: a connection serves any number of requests.
    set_keep_alive_max_count(1'000'000);
    set_keep_alive_timeout(idleTime.count());
    set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        const Refusal refusal = gate_(request);
        if (refusal.status == 0) {
            return HandlerResponse::Unhandled;
        }
        response.status = refusal.status;
        if (!refusal.allow.empty()) {
            response.set_header("Allow", refusal.allow);
        }
        return HandlerResponse::Handled;
    });
}

HttpServer::~HttpServer() {
    stop();
}

int HttpServer::bind() {
    const int port = bind_to_any_port("127.0.0.1");
    if (port <= 0) {
        return 0;
    }
    fcntl(svr_sock_, F_SETFD, FD_CLOEXEC);
    // The library lets five connections wait; the next one is lost, and tried again after a second.
    ::listen(svr_sock_, SOMAXCONN);
    return port;
}

bool HttpServer::start() {
    try {
        accepting_ = std::thread([this] {
            listen_after_bind();
            hasEnded_ = true;
        });
    } catch (const std::system_error &) {
        return false;
    }
    return true;
}

void HttpServer::stop() {
    if (!accepting_.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        for (const socket_t connection : connections_) {
            ::shutdown(connection, SHUT_RDWR);
        }
    }
    // What is not running yet does not hear the library's stop().
    while (!is_running() && !hasEnded_) {
        std::this_thread::yield();
    }
    Server::stop();
    accepting_.join();
}

bool HttpServer::enter(socket_t socket) {
    const std::lock_guard lock(mutex_);
    return !stopping_ && connections_.insert(socket).second;
}

void HttpServer::leave(socket_t socket) {
    const std::lock_guard lock(mutex_);
    connections_.erase(socket);
}

bool HttpServer::process_and_close_socket(socket_t socket) {
    if (enter(socket)) {
        setOptions(socket);
        serve(socket);
        leave(socket);
    }
    close(socket);
    return true;
}

void HttpServer::serve(socket_t socket) {
    ConnectionStream stream(socket);
    while (stream.awaitRequest(idleTime + grace) && serveOne(stream)) {
    }
    stream.leaveGently();
}

/// Answers the request that begins; returns whether another may follow it.
bool HttpServer::serveOne(ConnectionStream &stream) {
    bool last = true; // as long as it has not been understood
    const auto look = [this, &last](httplib::Request &request) {
        const bool readsBody = request.method == "POST" && gate_(request).status == 0;
        // What is left unread would be taken for the next request.
        last = hasBody(request) && !readsBody;
        if (last) {
            request.headers.erase("Connection");
            request.set_header("Connection", "close");
        }
        // The answers are for this machine: packing them takes longer than sending them.
        request.headers.erase("Accept-Encoding");
    };
    bool closing = false;
    const bool served = process_request(stream, false, closing, look);
    return stream.flush() && served && !closing && !last;
}

} // namespace pinmora
