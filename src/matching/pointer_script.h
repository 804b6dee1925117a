#pragma once

#include <string>
#include <string_view>

namespace pinmora {

/// The script that moves the map's pointer to a position without a label. Positions come from
/// files, and a script takes nothing but numbers from there: for any other text, the script that
/// removes the pointer.
std::string pointerScript(std::string_view lat, std::string_view lon, int zoom);

} // namespace pinmora
