#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pinmora {

/// Signed decimal degrees, north and east positive.
struct Position {
    double lat;
    double lon;
};

/// A place on the sphere as a point in space, one unit from the centre: distances between such
/// points know neither a date line nor poles.
struct UnitVector {
    double x;
    double y;
    double z;
};

/// One degree in radians.
inline constexpr double degree = std::numbers::pi / 180;

inline UnitVector unitVector(Position position) {
    const double aroundEquator = std::cos(position.lat * degree);
    return {aroundEquator * std::cos(position.lon * degree),
            aroundEquator * std::sin(position.lon * degree), std::sin(position.lat * degree)};
}

/// The square of the straight distance, 0 to 4; it grows with the distance along the surface.
inline double squaredChord(const UnitVector &a, const UnitVector &b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    const double dz = a.z - b.z;
    return dx * dx + dy * dy + dz * dz;
}

/// Along the surface of a sphere with the Earth's mean radius (IUGG), in metres.
inline double metresFromSquaredChord(double squared) {
    constexpr double earthRadius = 6371008.8;
    return 2 * earthRadius * std::asin(std::min(1.0, std::sqrt(squared) / 2));
}

} // namespace pinmora
