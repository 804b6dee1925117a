#include "services/names_in_box.h"

#include <cmath>
#include <optional>
#include <tuple>

namespace pinmora {
namespace {

struct Candidate {
    int obscurity; ///< more for a place that fewer know
    double eccentricity;
    std::size_t place;
    bool inBox;

    bool operator<(const Candidate &other) const {
        return std::tie(obscurity, eccentricity, place) <
               std::tie(other.obscurity, other.eccentricity, other.place);
    }
};

} // namespace

// Cells at the edge choose among all their places, also those outside the box: else the choice
// would change while the map is moved.
std::vector<std::size_t> placesInBox(const Gazetteer &gazetteer, const Prominence &prominence,
                                     const MapBox &box, std::size_t limit) {
    const bool isBox = box.south <= box.north && std::isfinite(box.west) && std::isfinite(box.east);
    if (limit == 0 || !isBox) {
        return {};
    }
    const MapGrid grid(box, limit);
    std::vector<std::optional<Candidate>> chosen(grid.cells());
    for (std::size_t place = 0; place < gazetteer.size(); ++place) {
        const Position position = gazetteer.position(place);
        if (const auto point = grid.at(position.lat, position.lon)) {
            const Candidate candidate{-prominence.of(place), point->eccentricity, place,
                                      point->inBox};
            auto &best = chosen[point->cell];
            if (!best || candidate < *best) {
                best = candidate;
            }
        }
    }
    std::vector<std::size_t> places;
    for (const auto &candidate : chosen) {
        if (candidate && candidate->inBox) {
            places.push_back(candidate->place);
        }
    }
    return places;
}

} // namespace pinmora
