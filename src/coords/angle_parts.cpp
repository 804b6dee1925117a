#include "coords/angle_parts.h"

#include <cmath>
#include <cstdint>

namespace pinmora {

namespace {

constexpr std::int64_t secondsPerDegree = 3600;

/// Counts in whole units, so that 59.9999... of one part never stands for one of the next.
AngleParts split(double angle, Notation notation, std::int64_t unitsPerDegree) {
    const std::int64_t units = std::llround(std::abs(angle) * static_cast<double>(unitsPerDegree));
    const std::int64_t unitsPerMinute = unitsPerDegree / 60;
    const auto perMinute = static_cast<double>(unitsPerMinute);
    const std::int64_t degrees = units / unitsPerDegree;
    const std::int64_t rest = units % unitsPerDegree;
    const std::int64_t minutes = rest / unitsPerMinute;
    if (notation == Notation::DegreesMinutes) {
        return {static_cast<double>(degrees), static_cast<double>(rest) / perMinute, 0};
    }
    return {static_cast<double>(degrees), static_cast<double>(minutes),
            static_cast<double>(rest % unitsPerMinute) * 60 / perMinute};
}

} // namespace

AngleParts shownParts(double angle, Notation notation) {
    return split(angle, notation,
                 notation == Notation::DegreesMinutes ? 60 * 1000 : secondsPerDegree * 10);
}

AngleParts partsToEdit(double angle, Notation notation) {
    const AngleParts exact = split(angle, notation, secondsPerDegree * 1'000'000);
    const AngleParts shown = shownParts(angle, notation);
    const bool carried = exact[0] != shown[0] ||
                         (notation == Notation::DegreesMinutesSeconds && exact[1] != shown[1]);
    return carried ? shown : exact;
}

double degreesOf(const AngleParts &parts) {
    return parts[0] + parts[1] / 60 + parts[2] / 3600;
}

} // namespace pinmora
