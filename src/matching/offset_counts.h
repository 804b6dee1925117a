#pragma once

#include "matching/track_coverage.h"
#include "platform/date.h"

#include <chrono>
#include <cstddef>
#include <vector>

namespace pinmora {

/// How many of some photos lie on the track under a clock offset.
class OffsetCounts {
public:
    /// Sorts the photos. The coverage is copied.
    OffsetCounts(std::vector<Date> photos, TrackCoverage coverage);

    std::size_t photos() const { return photos_.size(); }
    /// Photos on the track with that offset.
    std::size_t at(std::chrono::seconds offset) const;

    /// The offsets, of any there are, that put most photos on the track.
    struct Best {
        /// Between which all those lie that put nearly as many there as the best one: all but a
        /// twentieth of the photos.
        std::chrono::microseconds begin{0};
        std::chrono::microseconds end{0};
        double share = 0; ///< of the photos, that lie on the track with the best one
    };
    /// Of many photos and of many stretches a sample is looked at. There must be a photo and a
    /// stretch.
    Best best() const;

private:
    std::vector<Date> photos_; ///< ascending
    TrackCoverage coverage_;
};

} // namespace pinmora
