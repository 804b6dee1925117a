#pragma once

#include "platform/date.h"

#include <cstddef>
#include <optional>

namespace pinmora {

class track;

/// What a list of tracks shows of one.
struct TrackSummary {
    std::size_t points = 0;
    std::optional<Date> from{}; ///< the earliest time of a point; nothing where none has one
    std::optional<Date> to{};   ///< the latest
};

/// Walks over all points of the track.
TrackSummary summaryOf(const track &one);

} // namespace pinmora
