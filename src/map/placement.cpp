#include "map/placement.h"

#include "platform/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace pinmora {
namespace {

constexpr std::size_t longestPart = 64;

/// A number that a page has written: without blanks, and of a sensible length.
bool isPosition(std::string_view text, double limit) {
    return text.size() <= longestPart && trimmed(text) == text && degreesWithin(text, limit);
}

std::optional<std::int32_t> wholeNumber(std::string_view text) {
    std::int32_t number = 0;
    const char *const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<double> degreesWithin(std::string_view text, double limit) {
    const std::optional<double> number = plainDecimal(text);
    return number && std::abs(*number) <= limit ? number : std::nullopt;
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
    const std::optional<std::int32_t> zoom = wholeNumber(parts[2]);
    if (!isPosition(parts[0], 90) || !isPosition(parts[1], 180) || !zoom) {
        return std::nullopt;
    }
    return Placement{{std::string(parts[0]), std::string(parts[1])}, *zoom};
}

} // namespace pinmora
