#include "services/local_server.h"

#include "services/bundled_files.h"
#include "services/http_server.h"
#include "services/map_page.h"
#include "services/page_words.h"
#include "services/place_routes.h"

#include <charconv>
#include <map>
#include <mutex>
#include <utility>

namespace pinmora {
namespace {

constexpr const char *placePath = "/TerraService2.asmx";
constexpr std::size_t longestEnvelope = 64 * 1024;

/// Whether the body of a request is small, of a stated length and as it is.
int bodyRefusal(const httplib::Request &request) {
    constexpr int lengthRequired = 411;
    constexpr int tooLarge = 413;
    constexpr int unsupported = 415;
    const std::string stated = request.get_header_value("Content-Length");
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(stated.data(), stated.data() + stated.size(), length);
    if (error == std::errc::result_out_of_range || length > longestEnvelope) {
        return tooLarge;
    }
    if (error != std::errc() || end != stated.data() + stated.size() ||
        request.has_header("Transfer-Encoding")) {
        return lengthRequired;
    }
    return request.has_header("Content-Encoding") ? unsupported : 0;
}

/// Where tiles come from: told by the program, asked for by the server's threads.
class TileSetting {
public:
    void set(const std::string &setting) {
        const std::scoped_lock lock(mutex_);
        address_ = tileAddress(setting);
    }
    std::string get() const {
        const std::scoped_lock lock(mutex_);
        return address_;
    }

private:
    mutable std::mutex mutex_;
    std::string address_;
};

} // namespace

/// The server with all it serves, made before it starts; only the tiles may change.
struct LocalServer::Running {
    explicit Running(const LocalServerOptions &options)
        : server([this](const httplib::Request &request) { return refusal(request); }) {
        tiles.set(options.tileServer);
        addPage();
        routes["/maps/search"] = answerSearch;
        routes["/maps/names"] = answerNames;
        server.set_default_headers({{"Cache-Control", "no-store"},
                                    {"Cross-Origin-Resource-Policy", "same-origin"},
                                    {"X-Content-Type-Options", "nosniff"}});
        server.Get(".*", [this](const httplib::Request &request, httplib::Response &response) {
            routes.at(request.path)(request, response);
        });
        server.Post(".*", [](const httplib::Request &request, httplib::Response &response) {
            answerNearestPlace(request, response, placeNamespace);
        });
        port = server.bind();
        isServing = port != 0 && server.start();
    }

    void addPage() {
        for (auto &[name, content] : bundledMapFiles()) {
            if (name == "index.html") {
                // Its words are asked for with each answer: the program may not have its language
                // yet.
                routes["/maps/index3.php"] = [this, page = std::move(content),
                                              type =
                                                  contentType(name)](const httplib::Request &,
                                                                     httplib::Response &response) {
                    const std::string address = tiles.get();
                    response.set_content(mapPage(page, address, pageWords()), type);
                    response.set_header("Content-Security-Policy", contentSecurityPolicy(address));
                };
                continue;
            }
            routes["/maps/" + name] = [bytes = std::move(content), type = contentType(name)](
                                          const httplib::Request &, httplib::Response &response) {
                response.set_content(bytes, type);
            };
        }
    }

    HttpServer::Refusal refusal(const httplib::Request &request) const {
        constexpr int forbidden = 403;
        constexpr int notFound = 404;
        constexpr int wrongMethod = 405;
        const std::string host = request.get_header_value("Host");
        const std::string number = std::to_string(port);
        if (host != "127.0.0.1:" + number && host != "localhost:" + number) {
            return {forbidden};
        }
        if (request.path == placePath) {
            return request.method == "POST" ? HttpServer::Refusal{bodyRefusal(request)}
                                            : HttpServer::Refusal{wrongMethod, "POST"};
        }
        if (!routes.contains(request.path)) {
            return {notFound};
        }
        const bool reads = request.method == "GET" || request.method == "HEAD";
        return reads ? HttpServer::Refusal{} : HttpServer::Refusal{wrongMethod, "GET, HEAD"};
    }

    std::map<std::string, httplib::Server::Handler> routes; ///< of GET and HEAD, by path
    TileSetting tiles;
    int port = 0;
    bool isServing = false;
    HttpServer server; ///< the last to come and the first to go
};

LocalServer::LocalServer(LocalServerOptions options) : options_(std::move(options)) {}

LocalServer::~LocalServer() = default;

std::string LocalServer::address() {
    if (!running_) {
        running_ = std::make_unique<Running>(options_);
    }
    return running_->isServing ? "http://127.0.0.1:" + std::to_string(running_->port)
                               : std::string();
}

void LocalServer::setTileServer(const std::string &tileServer) {
    options_.tileServer = tileServer;
    if (running_) {
        running_->tiles.set(tileServer);
    }
}

} // namespace pinmora
