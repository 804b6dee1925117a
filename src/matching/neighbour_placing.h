#pragma once

#include "outlets/signal.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace pinmora {

class Context;
class NearestPoints;
class image;
struct MatchingOutlets;

/// What placing photos by their neighbours has come to.
struct NeighbourOutcome {
    std::size_t placed = 0;
    /// Serials of photos that stay as they are: without a capture time, or without a neighbour.
    std::vector<std::uint32_t> unplaced;
};

/// Places selected photos by what lies next to them in time. The camera's clock stays as it is.
class NeighbourPlacing {
public:
    /// All must outlive it.
    NeighbourPlacing(Context &context, MatchingOutlets &outlets, NearestPoints &points);

    /// Puts each selected photo between the two points around its corrected time, of the track that
    /// was running then; outside of all tracks between the two photos around it that have a
    /// position. Of several tracks the one with the closest points counts. Selected photos are no
    /// neighbours, nor are those whose own position is an estimate. One step of undo.
    void placeBetweenNeighbours();

    /// Puts the one selected photo at the point nearest in time, however far away. Nothing happens
    /// when another number of photos is selected.
    void placeAtNearestPoint();

    /// Sent at the end of either.
    Signal<const NeighbourOutcome &> placed;

private:
    Context &context_;
    MatchingOutlets &outlets_;
    NearestPoints &points_;
};

} // namespace pinmora
