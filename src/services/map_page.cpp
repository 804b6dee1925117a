#include "services/map_page.h"

#include "services/escaped_text.h"
#include "services/local_server.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pinmora {
namespace {

/// The scheme and host that a tile address leads to, as a source of the policy: a part of the host
/// that is filled in for each tile, and what stands before it, stands for any. "" where there is
/// no such host.
std::string tileSource(std::string_view address) {
    const std::size_t scheme = address.find("://");
    if (scheme == std::string_view::npos ||
        (address.substr(0, scheme) != "https" && address.substr(0, scheme) != "http")) {
        return {};
    }
    const std::string_view begin = address.substr(0, scheme + 3);
    std::string_view host = address.substr(begin.size());
    host = host.substr(0, host.find_first_of("/?#"));
    std::string_view any;
    if (const std::size_t filled = host.rfind('}'); filled != std::string_view::npos) {
        host = host.substr(std::min(host.find('.', filled), host.size()));
        host.remove_prefix(std::min<std::size_t>(1, host.size()));
        any = "*.";
    }
    const bool plain = !host.empty() && std::all_of(host.begin(), host.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '.' || c == '-' || c == ':' || c == '[' || c == ']';
    });
    return plain ? std::string(begin).append(any).append(host) : std::string();
}

} // namespace

std::string tileAddress(const std::string &setting) {
    if (setting.empty()) {
        return "https://tile.openstreetmap.org/{z}/{x}/{y}.png";
    }
    return setting == LocalServer::noTiles ? std::string() : setting;
}

std::string mapPage(std::string_view page, std::string_view tileAddress, std::string_view words) {
    const std::array<std::pair<std::string_view, std::string>, 2> kept{
        {{"@TILE_SERVER@", escapedForXml(tileAddress)}, {"@WORDS@", escapedForXml(words)}}};
    std::string filled;
    while (!page.empty()) {
        const auto place = std::find_if(kept.begin(), kept.end(), [page](const auto &one) {
            return page.starts_with(one.first);
        });
        if (place != kept.end()) {
            filled += place->second;
            page.remove_prefix(place->first.size());
        } else {
            const std::size_t next = std::min(page.find('@', 1), page.size());
            filled += page.substr(0, next);
            page.remove_prefix(next);
        }
    }
    return filled;
}

std::string contentSecurityPolicy(std::string_view tileAddress) {
    std::string pictures = "'self' data:";
    if (const std::string source = tileSource(tileAddress); !source.empty()) {
        pictures += " " + source;
    }
    return "default-src 'none'; script-src 'self'; style-src 'self' 'unsafe-inline'; img-src " +
           pictures +
           "; connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
}

std::string contentType(std::string_view fileName) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 6> types{{
        {".html", "text/html; charset=utf-8"},
        {".css", "text/css; charset=utf-8"},
        {".js", "text/javascript; charset=utf-8"},
        {".json", "application/json"},
        {".svg", "image/svg+xml"},
        {".png", "image/png"},
    }};
    for (const auto &[ending, type] : types) {
        if (fileName.ends_with(ending)) {
            return std::string(type);
        }
    }
    return "application/octet-stream";
}

} // namespace pinmora
