#pragma once

#include <array>
#include <map>
#include <string_view>

namespace pinmora {

/// The file name extensions of GPS logs, in the order in which they are offered.
inline constexpr std::array<std::string_view, 8> gpsLogTypes = {"log", "LOG", "txt",  "TXT",
                                                                "gpx", "GPX", "nmea", "NMEA"};

/// The same, each mapped to itself.
const std::map<std::string_view, std::string_view> &gpsLogTypeTable();

/// Whether a path names a GPS log: its extension is in the table exactly as spelled, and the path
/// itself does not begin with ".". The file is not looked at.
bool namesGpsLog(std::string_view path);

} // namespace pinmora
