#pragma once

#include "store/image.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace pinmora {

/// Where a page says that photos are to go.
struct Placement {
    PositionTexts position; ///< as it was said
    std::int32_t zoom = 0;
};

/// Reads "LATITUDE:LONGITUDE:ZOOM"; what may follow after another ":" is not looked at. Nothing
/// when it is not a place on the earth in plain decimals, and a zoom level.
std::optional<Placement> placementFrom(std::string_view said);

/// The whole zoom level of a text in plain decimals: some maps have levels between.
std::optional<std::int32_t> zoomFrom(std::string_view text);

/// A text in decimal degrees as a number; nothing when it is none, or beyond `limit` (90 or 180).
std::optional<double> degreesWithin(std::string_view text, double limit);

} // namespace pinmora
