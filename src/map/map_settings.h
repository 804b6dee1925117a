#pragma once

#include <string_view>

namespace pinmora {

/// The setting with the base URL of a server for the map page; "" for the built-in one.
inline constexpr std::string_view mapServerKey = "mapServer";

/// The setting that says where the built-in map page gets its tiles: an address with {z}, {x} and
/// {y}, "" for OpenStreetMap's, or the word for none.
inline constexpr std::string_view tileServerKey = "tileServer";
inline constexpr std::string_view noTiles = "none";

} // namespace pinmora
