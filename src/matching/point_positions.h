#pragma once

#include "platform/date.h"

#include <cstddef>
#include <vector>

namespace pinmora {

class track_part;

/// A latitude and a longitude in signed decimal degrees.
struct Position {
    double lat;
    double lon;
};

/// Finds the track point nearest to a position.
///
/// Near is told by the sum of the squares of both differences in plain degrees, whatever a degree
/// of longitude measures there; of several points at the same distance the earliest in the arranged
/// order is the nearest. Points without a time, or whose position is no number, are left out.
///
/// Building reads the positions out of their texts; a search walks over plain numbers. The points
/// are looked at only while building.
class PointPositions {
public:
    /// Any range of track_part pointers with a size.
    template <class Points>
    explicit PointPositions(const Points &arranged) {
        reserve(arranged.size());
        for (track_part *point : arranged) {
            keepIfFindable(point);
        }
    }

    /// Null when there is no point to find.
    track_part *nearest(Position known) const;
    /// When the tracks passed within so many metres of a place: of each run of points in there the
    /// time of the nearest one.
    std::vector<Date> passes(Position place, double metres) const;

private:
    void reserve(std::size_t count);
    void keepIfFindable(track_part *point);

    std::vector<Position> positions_;
    std::vector<track_part *> points_;
};

} // namespace pinmora
