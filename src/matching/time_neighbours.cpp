#include "matching/time_neighbours.h"

#include "platform/number_text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numbers>

namespace pinmora {

namespace {

using Direction = std::array<double, 3>; ///< from the middle of the earth

constexpr double radian = std::numbers::pi / 180;

Direction directionOf(Position position) {
    const double lat = position.lat * radian;
    const double lon = position.lon * radian;
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

Position positionAt(const Direction &direction) {
    const auto [x, y, z] = direction;
    return {.lat = std::atan2(z, std::hypot(x, y)) / radian, .lon = std::atan2(y, x) / radian};
}

/// Along the great circle, which knows no date line. Places opposite each other have none.
Position alongGreatCircle(Position from, Position to, double part) {
    const Direction a = directionOf(from);
    const Direction b = directionOf(to);
    const double dot = a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    const double cross =
        std::hypot(a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]);
    const double angle = std::atan2(cross, dot);
    constexpr double nothingBetween = 1e-12; // radians; some micrometres
    if (cross < nothingBetween) {
        return part < 0.5 ? from : to;
    }
    const double ofA = std::sin((1 - part) * angle) / std::sin(angle);
    const double ofB = std::sin(part * angle) / std::sin(angle);
    return positionAt({ofA * a[0] + ofB * b[0], ofA * a[1] + ofB * b[1], ofA * a[2] + ofB * b[2]});
}

} // namespace

std::optional<TimedPlace> timedPlace(Date time, std::string_view lat, std::string_view lon,
                                     std::string_view alt) {
    const std::optional<double> north = plainDecimal(lat);
    const std::optional<double> east = plainDecimal(lon);
    if (!north || !east || std::abs(*north) > 90 || std::abs(*east) > 180) {
        return std::nullopt;
    }
    return TimedPlace{
        .time = time, .position = {.lat = *north, .lon = *east}, .altitude = plainDecimal(alt)};
}

std::optional<TimeNeighbours> neighboursOf(Date instant, const std::vector<TimedPlace> &places) {
    const auto after = std::ranges::lower_bound(places, instant, {}, &TimedPlace::time);
    if (after == places.end()) {
        return std::nullopt;
    }
    if (after->time == instant) {
        return TimeNeighbours{.before = *after, .after = *after};
    }
    if (after == places.begin()) {
        return std::nullopt;
    }
    return TimeNeighbours{.before = *std::prev(after), .after = *after};
}

TimedPlace placeBetween(const TimeNeighbours &neighbours, Date instant) {
    const auto &[before, after] = neighbours;
    if (before.time == after.time) {
        return before;
    }
    const double part = std::chrono::duration<double>(instant - before.time) /
                        std::chrono::duration<double>(neighbours.apart());
    TimedPlace between{.time = instant,
                       .position = alongGreatCircle(before.position, after.position, part),
                       .altitude = std::nullopt};
    if (before.altitude && after.altitude) {
        between.altitude = std::lerp(*before.altitude, *after.altitude, part);
    }
    return between;
}

} // namespace pinmora
