#pragma once

#include "platform/date.h"

#include <chrono>
#include <cstddef>
#include <span>

namespace pinmora {

/// A photo this near to a point, or nearer, shows that photos and log are of the same outing.
inline constexpr std::chrono::seconds sameOuting = std::chrono::minutes(5);

/// Whether a photo lies within `sameOuting` of one of the points, whose times rise.
bool isNearPoint(Date photo, std::span<const Date> points);

/// How many photos lie within `sameOuting` of a point under each way of reading the same logs.
struct ReadingComparison {
    std::size_t exact = 0;
    std::size_t tolerant = 0;

    /// Whether the exact reading places no photo and the tolerant one would: then it is worth
    /// reading the logs anew. Where both find something the exact reading stays in force, because
    /// the two may understand the same text as different instants.
    bool onlyTolerantPlacesPhotos() const { return exact == 0 && tolerant > 0; }
    /// Whether the tolerant reading places more photos. That does not settle it, as a photo may lie
    /// near a point by accident, but it is worth telling.
    bool tolerantPlacesMore() const { return tolerant > exact; }
};

/// Compares two readings of the same logs. `photos` are capture times with the camera's offset
/// applied; `exactPoints` and `tolerantPoints` the times of the points that have a position under
/// each reading. All in any order; sorting is saved where points are in order of time already.
ReadingComparison compareReadings(std::span<const Date> photos, std::span<const Date> exactPoints,
                                  std::span<const Date> tolerantPoints);

} // namespace pinmora
