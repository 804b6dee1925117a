#include "matching/point_positions.h"

#include "platform/number_text.h"
#include "store/track_part.h"

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

} // namespace pinmora
