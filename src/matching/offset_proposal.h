#pragma once

#include "matching/track_coverage.h"
#include "platform/date.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace pinmora {

/// A photo that a person has placed, or one whose own file says where it was taken, as a witness of
/// the clock.
struct PlacedPhoto {
    Date taken;               ///< by the camera's clock
    std::vector<Date> passes; ///< when the track passed by the photo's place
};

/// What a clock offset is judged by. All times of photos are as the camera's clock has them.
struct OffsetEvidence {
    std::vector<Date> photos;
    TrackCoverage coverage;
    std::chrono::seconds inForce{0};                   ///< the offset as it is set
    std::vector<std::chrono::seconds> impliedByTags{}; ///< by photos that tell their time zone
    std::vector<PlacedPhoto> placed{};
};

/// An offset that would bring clearly more of the photos onto the track.
struct OffsetProposal {
    std::chrono::seconds offset{0}; ///< the whole of it, not a difference to the one in force
    std::size_t onTrack = 0;
    std::size_t photos = 0;
    bool isApproximate = false; ///< it may be wrong by some minutes

    friend bool operator==(const OffsetProposal &, const OffsetProposal &) = default;
};

/// Proposes a clock offset, or keeps silent.
///
/// An offset is as good as the number of photos that it puts on the track (TrackCoverage). It is
/// proposed only if at least three photos, more than half of all, and clearly more than now lie on
/// the track with it. Whole, half and quarter hours up to 26 come first: a time zone or summer
/// time is forgotten much more often than a clock runs wrong. One of them must beat all others
/// clearly, and half and quarter hours must fit the log closely; where a long log leaves several as
/// good, the zone that the photos' own tags tell decides, if it is among these. Else any offset is
/// looked at, also one of years; it must beat all hours clearly, and its photos must fit the log so
/// closely that it is known to some minutes. Such an offset is an approximate one.
///
/// Photos that have been placed overrule that: an offset under which most of them were where the
/// track passed at that moment is proposed, to the second, if it puts more than half of the photos
/// on the track.
///
/// Logarithmic in the photos for each stretch of the coverage; a few milliseconds for any library.
std::optional<OffsetProposal> proposeOffset(OffsetEvidence evidence);

} // namespace pinmora
