#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// A place as a service names it.
struct PlaceAnswer {
    /// City, province or state, country; nothing for a part that the answer lacks.
    std::array<std::optional<std::string>, 3> names;
    std::optional<double> distance{}; ///< from the position to the place, in metres
};

/// What an answer's body says; nothing when it has no result. What is malformed after the result
/// does no harm to it. External entities are not resolved.
std::optional<PlaceAnswer> readPlaceAnswer(std::string_view body);

/// The distance in a header's value: whole metres in plain digits, no more than half way around the
/// earth.
std::optional<double> readPlaceDistance(std::string_view header);

} // namespace pinmora
