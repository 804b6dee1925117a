#include "map/placement.h"

#include "platform/number_text.h"

#include <array>
#include <cmath>
#include <limits>

namespace pinmora {
namespace {

constexpr std::size_t longestPart = 64;

/// Whether a page may have written it for a number: without blanks, and of a sensible length.
bool isNumberText(std::string_view text) {
    return text.size() <= longestPart && trimmed(text) == text;
}

bool isPosition(std::string_view text, double limit) {
    return isNumberText(text) && degreesWithin(text, limit);
}

} // namespace

std::optional<double> degreesWithin(std::string_view text, double limit) {
    const std::optional<double> number = plainDecimal(text);
    return number && std::abs(*number) <= limit ? number : std::nullopt;
}

std::optional<std::int32_t> zoomFrom(std::string_view text) {
    const std::optional<double> level = isNumberText(text) ? plainDecimal(text) : std::nullopt;
    const bool isLevel = level && std::abs(*level) <= std::numeric_limits<std::int32_t>::max();
    return isLevel ? std::optional(leadingInt(text)) : std::nullopt;
}

std::optional<Placement> placementFrom(std::string_view said) {
    std::array<std::string_view, 3> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t end = said.find(':');
        parts[i] = said.substr(0, end);
        if (end == std::string_view::npos) {
            if (i + 1 < parts.size()) {
                return std::nullopt;
            }
            break;
        }
        said.remove_prefix(end + 1);
    }
    const std::optional<std::int32_t> zoom = zoomFrom(parts[2]);
    if (!isPosition(parts[0], 90) || !isPosition(parts[1], 180) || !zoom) {
        return std::nullopt;
    }
    return Placement{{std::string(parts[0]), std::string(parts[1])}, *zoom};
}

} // namespace pinmora
