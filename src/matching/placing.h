#pragma once

#include "platform/date.h"

#include <cstdint>
#include <optional>

namespace pinmora {

class image;
class offset;
class track_part;

/// The map zoom level of a photo that has been placed at a track point.
inline constexpr std::int32_t placedZoom = 10;

/// The photo's date with its camera's clock offset applied; nothing for a photo without a date. No
/// four-digit year and no offset are too large for it.
std::optional<Date> correctedTime(const image &photo, const offset &clockOffset);

/// Gives the photo the latitude and longitude of the point, texts as they are. `corrected`: the
/// photo's time, from which it remembers how far off the point was.
void placeAt(image &photo, const track_part &point, std::optional<Date> corrected);

/// placeAt() and the point's altitude.
void placeAtWithAltitude(image &photo, const track_part &point, std::optional<Date> corrected);

} // namespace pinmora
