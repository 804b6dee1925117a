#include "matching/point_index.h"

#include "matching/sort_runs.h"
#include "matching/time_distance.h"
#include "store/track_part.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

namespace pinmora {

namespace {

/// Whether a photo can be given the point's place.
bool isFindable(const track_part &point) {
    return point.time() && !point.lat().view().empty() && !point.lon().view().empty();
}

/// The end of the stretch, from `begin` on, of elements that belong. Looked for in steps that
/// double, because it is near as a rule.
template <class Iterator, class Belongs>
Iterator endOfStretch(Iterator begin, Iterator end, Belongs belongs) {
    std::ptrdiff_t step = 1;
    while (step < end - begin && belongs(begin[step - 1])) {
        begin += step;
        step *= 2;
    }
    return std::partition_point(begin, begin + std::min(step, end - begin), belongs);
}

} // namespace

void PointIndex::reserve(std::size_t count) {
    times_.reserve(count);
    points_.reserve(count);
}

/// Of neighbours with the same time only the first can ever be the nearest.
void PointIndex::keepIfFindable(track_part *point) {
    if (isFindable(*point) && (times_.empty() || times_.back() != *point->time())) {
        times_.push_back(*point->time());
        points_.push_back(point);
    }
}

void PointIndex::sortTimesIfNeeded() {
    if (!std::is_sorted(times_.begin(), times_.end())) {
        sortTimes();
    }
}

/// Of all points with the same time only the first in the arranged order is kept.
void PointIndex::sortTimes() {
    struct Entry {
        Date time;
        std::uint32_t order;
    };
    std::vector<Entry> entries;
    entries.reserve(times_.size());
    for (Date time : times_) {
        entries.push_back({time, static_cast<std::uint32_t>(entries.size())});
    }
    sortRuns(entries, [](const Entry &a, const Entry &b) { return a.time < b.time; });
    const auto sameTime = [](const Entry &a, const Entry &b) { return a.time == b.time; };
    entries.erase(std::unique(entries.begin(), entries.end(), sameTime), entries.end());

    std::vector<std::uint32_t> orders;
    orders.reserve(entries.size());
    times_.clear();
    for (const Entry &entry : entries) {
        times_.push_back(entry.time);
        orders.push_back(entry.order);
    }
    orders_ = EarliestInRange(orders);
}

track_part *PointIndex::nearest(Date target) const {
    if (times_.empty()) {
        return nullptr;
    }
    const auto later = std::upper_bound(times_.begin(), times_.end(), target);
    std::uint64_t least = std::numeric_limits<std::uint64_t>::max();
    if (later != times_.begin()) {
        least = wholeSecondsApart(later[-1], target);
    }
    if (later != times_.end()) {
        least = std::min(least, wholeSecondsApart(*later, target));
    }
    // No time lies nearer than `least`, so those at that distance stand in one stretch across both
    // sides of the target. It can be long: a second may hold any number of points.
    const auto atLeast = [&](Date time) { return wholeSecondsApart(time, target) == least; };
    const auto before = std::make_reverse_iterator(later);
    const auto first = endOfStretch(before, times_.rend(), atLeast).base();
    const auto last = endOfStretch(later, times_.end(), atLeast);
    return earliestOf(static_cast<std::size_t>(first - times_.begin()),
                      static_cast<std::size_t>(last - times_.begin()));
}

/// Of the points whose times stand from `begin` to before `end`.
track_part *PointIndex::earliestOf(std::size_t begin, std::size_t end) const {
    return points_[orders_.empty() ? begin : orders_.least(begin, end)];
}

} // namespace pinmora
