#pragma once

#include "services/gazetteer.h"
#include "services/map_grid.h"
#include "services/prominence.h"

#include <cstddef>
#include <vector>

namespace pinmora {

/// At most `limit` places of the box, spread evenly over it so that their labels do not crowd: one
/// of each cell of a grid, the most prominent. A map that is moved keeps what it shows.
std::vector<std::size_t> placesInBox(const Gazetteer &gazetteer, const Prominence &prominence,
                                     const MapBox &box, std::size_t limit);

} // namespace pinmora
