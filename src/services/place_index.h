#pragma once

#include "services/sphere.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace pinmora {

/// Finds the nearest of many points on the sphere: a balanced k-d tree in space, whose nodes know
/// the tight box around their points. Tight boxes matter for a point in the middle of an ocean, far
/// from all there are.
///
/// Unchanged once made: any thread may search.
class PlaceIndex {
public:
    struct Nearest {
        std::size_t place;   ///< its number in what the index was made from
        double squaredChord; ///< from the point that was asked for
    };

    PlaceIndex() = default;
    explicit PlaceIndex(const std::vector<UnitVector> &places);

    /// The nearest place, exactly; of several that are equally near the first. There must be one.
    Nearest nearest(const UnitVector &point) const;

    bool empty() const { return points_.empty(); }

private:
    /// Single precision, rounded outward: half the memory of the nodes, and still no point outside.
    struct Box {
        std::array<float, 3> low;
        std::array<float, 3> high;
    };
    class Builder;

    /// Node 1 is the root, 2n and 2n+1 are the children of n, and the last half are the leaves,
    /// which share the points out evenly among them.
    std::vector<Box> boxes_;
    std::vector<UnitVector> points_;    ///< in the order of the leaves
    std::vector<std::uint32_t> places_; ///< of each point
    std::size_t leaves_ = 0;            ///< a power of two

    std::size_t leafBegin(std::size_t leaf) const { return points_.size() * leaf / leaves_; }
    static double squaredDistance(const Box &box, const UnitVector &point);
    void searchLeaf(std::size_t leaf, const UnitVector &point, Nearest &best) const;
};

} // namespace pinmora
