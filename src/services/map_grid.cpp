#include "services/map_grid.h"

#include "services/sphere.h"

#include <algorithm>
#include <cmath>

namespace pinmora {
namespace {

/// Where Mercator maps of the world end, which makes them square.
constexpr double mercatorEnd = 85.051128;

/// 0 to 360.
double mercatorHeight(double lat) {
    const double bounded = std::clamp(lat, -mercatorEnd, mercatorEnd);
    return std::clamp(180 + std::asinh(std::tan(bounded * degree)) / degree, 0.0, 360.0);
}

double latitudeAt(double height) {
    return std::atan(std::sinh((height - 180) * degree)) / degree;
}

/// A longitude's distance to the east of the date line, 0 to below 360.
double eastOfDateLine(double lon) {
    return lon + 180 - 360 * std::floor((lon + 180) / 360);
}

} // namespace

void MapGrid::Axis::count() {
    first = std::floor(begin / size);
    touched = static_cast<std::size_t>(std::min(cells(), std::floor(end / size) - first + 1));
}

MapGrid::MapGrid(const MapBox &box, std::size_t mostCells)
    : box_(box), columns_{eastOfDateLine(box.west), eastOfDateLine(box.east)},
      rows_{mercatorHeight(box.south), mercatorHeight(box.north)} {
    if (box.east - box.west >= 360) {
        columns_.begin = 0;
        columns_.end = 360;
    } else if (columns_.end < columns_.begin) {
        columns_.end += 360;
    }
    rows_.count();
    columns_.count();
    // A label is wider than high: the cells are, at every second step.
    while (cells() > mostCells && rows_.size < 360) {
        Axis &next = columns_.size > rows_.size ? rows_ : columns_;
        next.size *= 2;
        next.count();
    }
    // The top line of the map belongs to the row below it.
    rows_.first = std::min(rows_.first, rows_.cells() - 1);
    rows_.touched = std::min(rows_.touched, static_cast<std::size_t>(rows_.cells() - rows_.first));
    const double beyond = rows_.first + static_cast<double>(rows_.touched);
    southmost_ = rows_.first == 0 ? -90 : latitudeAt(rows_.first * rows_.size);
    northmost_ = beyond == rows_.cells() ? 90 : latitudeAt(beyond * rows_.size);
}

std::optional<MapGrid::Point> MapGrid::at(double lat, double lon) const {
    if (lat < southmost_ || lat > northmost_) {
        return std::nullopt;
    }
    const double x = eastOfDateLine(lon);
    double column = std::floor(x / columns_.size) - columns_.first;
    if (column < 0) {
        column += columns_.cells();
    }
    const double y = mercatorHeight(lat);
    const double row = std::floor(y / rows_.size) - rows_.first;
    const auto touchedColumns = static_cast<double>(columns_.touched);
    if (column >= touchedColumns) {
        return std::nullopt;
    }
    const double inRows = std::clamp(row, 0.0, static_cast<double>(rows_.touched - 1));
    const auto offCentre = [](double value, double size) {
        return std::abs(value / size - std::floor(value / size) - 0.5) * 2;
    };
    const bool within = (x >= columns_.begin ? x : x + 360) <= columns_.end;
    return Point{static_cast<std::size_t>(inRows * touchedColumns + column),
                 std::max(offCentre(x, columns_.size), offCentre(y, rows_.size)),
                 within && lat >= box_.south && lat <= box_.north};
}

} // namespace pinmora
