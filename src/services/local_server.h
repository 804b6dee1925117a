#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace pinmora {

struct LocalServerOptions {
    /// Where the map page gets its tiles: an address with {z}, {x} and {y}; "": OpenStreetMap's;
    /// LocalServer::noTiles: the bundled map only.
    std::string tileServer;
};

/// The services that come with the program: the map page with what belongs to it, and place names
/// by position as SOAP 1.1, over HTTP on the loopback interface, on threads of their own.
///
/// Who asks under another host name than the loopback's is refused, so that no web site can reach
/// it by a name that leads here.
class LocalServer {
public:
    explicit LocalServer(LocalServerOptions options);
    /// Ends what is being served.
    ~LocalServer();
    LocalServer(const LocalServer &) = delete;
    LocalServer &operator=(const LocalServer &) = delete;

    /// "http://127.0.0.1:PORT"; starts the server at the first call, with a port that is free. ""
    /// when there is none.
    std::string address();
    /// Where the map page gets its tiles when it is loaded next, as in the options.
    void setTileServer(const std::string &tileServer);

    static constexpr std::string_view noTiles = "none";

    /// The URI of the place-name operation's names.
    static constexpr const char *placeNamespace = "urn:pinmora:places/";

private:
    struct Running;
    LocalServerOptions options_;
    std::unique_ptr<Running> running_;
};

} // namespace pinmora
