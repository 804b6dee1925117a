#pragma once

#include <cstddef>
#include <optional>

namespace pinmora {

/// A part of the map, in degrees. Where its west is greater than its east, it lies across the date
/// line; from 360 on it goes all around.
struct MapBox {
    double south;
    double west;
    double north;
    double east;
};

/// The cells that a box touches of a grid over the world's Mercator map. The fineness of the grid
/// follows the box, its lines do not: they are the same wherever a box of that size lies.
class MapGrid {
public:
    /// The finest grid of which the box touches at most `mostCells` cells, at least 1. The
    /// latitudes of the box lie in order.
    MapGrid(const MapBox &box, std::size_t mostCells);

    struct Point {
        std::size_t cell;    ///< below cells()
        double eccentricity; ///< 0 in the middle of its cell, 1 at its edge
        bool inBox;          ///< else only in a cell that the box touches
    };

    std::size_t cells() const { return columns_.touched * rows_.touched; }

    /// Where a place is on the grid; nothing outside the cells that the box touches.
    std::optional<Point> at(double lat, double lon) const;

private:
    /// One direction of the map, 360 long from 0 at its western or southern end.
    struct Axis {
        double begin; ///< of the box
        double end;   ///< may lie beyond 360
        double size = 360.0 / (1U << 20U);
        double first = 0; ///< the first line that the box touches
        std::size_t touched = 0;

        void count();
        double cells() const { return 360 / size; }
    };

    MapBox box_;
    Axis columns_;
    Axis rows_;
    double southmost_ = -90; ///< what lies beyond is in no row
    double northmost_ = 90;
};

} // namespace pinmora
