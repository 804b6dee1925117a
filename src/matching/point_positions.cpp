#include "matching/point_positions.h"

#include "platform/number_text.h"
#include "store/track_part.h"

#include <cmath>
#include <numbers>

namespace pinmora {

void PointPositions::reserve(std::size_t count) {
    positions_.reserve(count);
    points_.reserve(count);
}

void PointPositions::keepIfFindable(track_part *point) {
    const std::optional<double> lat = plainDecimal(point->lat().view());
    const std::optional<double> lon = plainDecimal(point->lon().view());
    if (point->time() && lat && lon) {
        positions_.push_back({*lat, *lon});
        points_.push_back(point);
    }
}

track_part *PointPositions::nearest(Position known) const {
    const auto distance = [known](const Position &position) {
        const double north = position.lat - known.lat;
        const double east = position.lon - known.lon;
        return north * north + east * east;
    };
    if (points_.empty()) {
        return nullptr;
    }
    std::size_t best = 0;
    double least = distance(positions_.front());
    for (std::size_t i = 1; i < positions_.size(); ++i) {
        const double next = distance(positions_[i]);
        if (next < least) {
            least = next;
            best = i;
        }
    }
    return points_[best];
}

/// On a plane that touches the earth at the place: good enough for the width of a valley.
std::vector<Date> PointPositions::passes(Position place, double metres) const {
    constexpr double metresOfDegree = 111'195; // of latitude, on a sphere of the mean radius
    const double narrowing = std::cos(place.lat * std::numbers::pi / 180);
    const auto squaredMetres = [&](const Position &position) {
        const double east = std::remainder(position.lon - place.lon, 360.0) * narrowing;
        const double north = position.lat - place.lat;
        return (east * east + north * north) * metresOfDegree * metresOfDegree;
    };
    std::vector<Date> times;
    double least = 0;
    bool isPassing = false;
    for (std::size_t i = 0; i < positions_.size(); ++i) {
        const double distance = squaredMetres(positions_[i]);
        const bool isNear = distance <= metres * metres;
        if (isNear && !isPassing) {
            times.push_back(*points_[i]->time());
            least = distance;
        } else if (isNear && distance < least) {
            times.back() = *points_[i]->time();
            least = distance;
        }
        isPassing = isNear;
    }
    return times;
}

} // namespace pinmora
