#pragma once

#include "matching/earliest_in_range.h"
#include "platform/date.h"

#include <cstddef>
#include <span>
#include <vector>

namespace pinmora {

class track_part;

/// Finds the track point nearest in time to an instant, as a walk over all points would.
///
/// Near is told in whole seconds (wholeSecondsApart()), however many; of several points at the same
/// distance the earliest in the arranged order is the nearest. Points without a time, a
/// latitude or a longitude are left out.
///
/// Building sorts the points by time, which is no work where they are in that order already, as
/// logs are; a search is logarithmic and allocates nothing. The points are looked at only while
/// building: when one changes, comes or goes, make a new index.
class PointIndex {
public:
    /// Any range of track_part pointers with a size, at most 2^32; walked once, because a million
    /// points come through the processor's cache only slowly.
    template <class Points>
    explicit PointIndex(const Points &arranged) {
        reserve(arranged.size());
        for (track_part *point : arranged) {
            keepIfFindable(point);
        }
        sortTimesIfNeeded();
    }

    /// Null when there is no point to find.
    track_part *nearest(Date target) const;
    /// The times of the points that can be found, ascending, each once.
    std::span<const Date> times() const { return times_; }

private:
    void reserve(std::size_t count);
    void keepIfFindable(track_part *point);
    void sortTimesIfNeeded();
    void sortTimes();
    track_part *earliestOf(std::size_t begin, std::size_t end) const;

    std::vector<Date> times_;          ///< ascending, each once
    std::vector<track_part *> points_; ///< those that can be found, in the arranged order
    /// For each time the place in points_ of its first point; empty where that is the time's own.
    EarliestInRange orders_;
};

} // namespace pinmora
