#include "matching/point_positions.h"

#include "matching/findable_point.h"
#include "platform/number_text.h"

namespace pinmora {

void PointPositions::reserve(std::size_t count) {
    positions_.reserve(count);
    points_.reserve(count);
}

void PointPositions::keepIfFindable(track_part *point) {
    if (isFindable(*point)) {
        positions_.push_back(
            {leadingDouble(point->lat().view()), leadingDouble(point->lon().view())});
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
