#pragma once

#include "platform/date.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Of ASCII, whatever the locale.
inline bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Signed decimal degrees ("+48.117298") from degrees and minutes ("4807.038") and "N" or "S".
/// Computed in single precision. Nothing for another hemisphere or a latitude of fewer than two
/// characters.
std::optional<std::string> makeLat(std::string_view latitude, std::string_view part);

/// The same for a longitude ("01131.000": three characters of degrees) and "E" or "W".
std::optional<std::string> makeLon(std::string_view longitude, std::string_view part);

/// Metres with five decimals ("545.40002": single precision); "" for "".
std::string makeEleString(std::string_view altitude);

/// Whether makeDateStamp() can take the two texts apart: each has at least six characters.
bool isDateStamp(std::string_view date, std::string_view time);

/// The instant of a date ("230394": day, month, year) and a universal time ("123519", what follows
/// is dropped). Years that would lie after `currentYear` are of the 20th century. Nothing for a day
/// or time that no calendar has.
std::optional<Date> makeDateStamp(std::string_view date, std::string_view time,
                                  std::chrono::year currentYear);

/// The time of day of a universal time ("123519..."); nothing for one that no clock shows.
std::optional<std::chrono::seconds> makeTimeOfDay(std::string_view time);

} // namespace pinmora
