#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace pinmora {

/// Where place names are asked for.
struct PlaceService {
    std::string address;   ///< base URL; "" when there is no service to be had
    std::string host;      ///< the "Host" header that the service expects; "": that of the address
    std::string nameSpace; ///< URI of the operation, ending in a slash
};

/// What an answer may take at most.
struct PlaceLimits {
    std::size_t bytes = std::size_t{64} * 1024;
    std::chrono::milliseconds time{30'000}; ///< from the request to the answer's last byte
};

} // namespace pinmora
