#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// The script that moves the map's pointer to a position without a label. Positions come from
/// files, and a script takes nothing but numbers from there: for any other text, the script that
/// removes the pointer.
std::string pointerScript(std::string_view lat, std::string_view lon, int zoom);

/// The same without a zoom level: the map keeps its own.
std::string pointerScript(std::string_view lat, std::string_view lon);

/// The script that moves the pointer and the map with it, and labels the pointer.
std::string pointerScript(std::string_view lat, std::string_view lon, int zoom,
                          std::string_view label);

/// The script that has the page begin a new marker at a position; "" counts as 0. Where the texts
/// are no numbers, the script for when no position is known.
std::string newMarkerScript(std::string_view lat, std::string_view lon, int zoom);
std::string newMarkerScript();

} // namespace pinmora
